#include "output/HTMLConfigInfo.h"

#include "support/TemplateLibrary.h"

#include <gtest/gtest.h>

namespace {

class HTMLPage : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    HTMLConfigInfo info;
};

TEST_F(HTMLPage, HoldsTitleKeywordsAndDescriptionInUtf8) {
    TestFiles::write(path("t.html"), "\xef\xbb\xbf<t>${index.title}</t>\n<k>${meta.keywords}</k>"
                                     "<d>${meta.description}</d>\xc3\xa9");
    info.setHTMLTitle("B\u00fccher");
    info.setHTMLKeywords("k1,k2");
    info.setHTMLDescription("about");
    EXPECT_TRUE(info.generateHTMLFrom(path("t.html"), path("index.html")));
    EXPECT_EQ(TestFiles::read(path("index.html")),
              "<t>B\u00fccher</t>\n<k>k1,k2</k><d>about</d>\u00e9");
}

} // namespace
