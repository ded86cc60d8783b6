#include "output/HTMLConfigInfo.h"

#include "support/TemplateLibrary.h"

#include <gtest/gtest.h>

TEST(HTMLPage, HoldsTitleKeywordsAndDescriptionInUtf8AndTheFlashMovie) {
    const QTemporaryDir folder;
    const QString source = folder.filePath("t.html");
    TestFiles::write(source,
                     "\xef\xbb\xbf<t>${index.title}</t>\n<k>${meta.keywords}</k>"
                     "<d>${meta.description}</d>\xc3\xa9${book.language}<s>${book.start}</s>"
                     "<h>${book.head}</h><m>${book.movie}</m>${book.end}");
    HTMLConfigInfo info;
    info.setHTMLTitle("B\u00fccher");
    info.setHTMLKeywords("k1,k2");
    info.setHTMLDescription("about");
    const QString page = folder.filePath("index.html");
    EXPECT_TRUE(info.generateHTMLFrom(source, page));
    EXPECT_EQ(TestFiles::read(page),
              "<t>B\u00fccher</t>\n<k>k1,k2</k><d>about</d>\u00e9en<s></s><h></h><m><object "
              "type=\"application/x-shockwave-flash\" data=\"book.swf\" width=\"100%\" "
              "height=\"90%\"></object></m>");
}
