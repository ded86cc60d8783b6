#include "output/HTMLConfigInfo.h"

#include "support/TemplateLibrary.h"

#include <gtest/gtest.h>

TEST(HTMLPage, HoldsTitleKeywordsAndDescriptionInUtf8) {
    const QTemporaryDir folder;
    const QString source = folder.filePath("t.html");
    TestFiles::write(source, "\xef\xbb\xbf<t>${index.title}</t>\n<k>${meta.keywords}</k>"
                             "<d>${meta.description}</d>\xc3\xa9");
    HTMLConfigInfo info;
    info.setHTMLTitle("B\u00fccher");
    info.setHTMLKeywords("k1,k2");
    info.setHTMLDescription("about");
    const QString page = folder.filePath("index.html");
    EXPECT_TRUE(info.generateHTMLFrom(source, page));
    EXPECT_EQ(TestFiles::read(page), "<t>B\u00fccher</t>\n<k>k1,k2</k><d>about</d>\u00e9");
}
