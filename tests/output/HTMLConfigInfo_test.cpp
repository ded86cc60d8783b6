#include "output/HTMLConfigInfo.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class HTMLPage : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir folder;
    HTMLConfigInfo info;
};

TEST_F(HTMLPage, HoldsTitleKeywordsAndDescriptionInUtf8) {
    write(path("t.html"), "\xef\xbb\xbf<t>${index.title}</t>\n<k>${meta.keywords}</k>"
                          "<d>${meta.description}</d>\xc3\xa9");
    info.setHTMLTitle(QStringLiteral("B\u00fccher"));
    info.setHTMLKeywords(QStringLiteral("k1,k2"));
    info.setHTMLDescription(QStringLiteral("about"));
    EXPECT_TRUE(info.generateHTMLFrom(path("t.html"), path("index.html")));
    EXPECT_EQ(read(path("index.html")), "<t>B\xc3\xbc"
                                        "cher</t>\n<k>k1,k2</k><d>about</d>\xc3\xa9");
}

TEST_F(HTMLPage, StartsWithTextsOfTheProduct) {
    EXPECT_EQ(info.HTMLTitle(), QStringLiteral("PDF to Folvero"));
    EXPECT_EQ(info.HTMLKeywords().split(u',').size(), 4);
    EXPECT_FALSE(info.HTMLDescription().isEmpty());
    EXPECT_EQ(info.HTMLScript(), QStringLiteral(""));
    EXPECT_FALSE(info.otherScript().isNull());
}

TEST_F(HTMLPage, IsEmptyWhenTheTemplateCannotBeRead) {
    write(path("index.html"), "old");
    EXPECT_TRUE(info.generateHTMLFrom(path("missing.html"), path("index.html")));
    EXPECT_EQ(read(path("index.html")), "");
}

TEST_F(HTMLPage, ReportsAFailedWrite) {
    write(path("t.html"), "text");
    Message error;
    EXPECT_FALSE(info.generateHTMLFrom(path("t.html"), path("no/folder/index.html"), &error));
    EXPECT_FALSE(error.isNull());
}

} // namespace
