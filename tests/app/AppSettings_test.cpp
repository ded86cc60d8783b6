#include "app/AppSettings.h"
#include "app/PublishedBooks.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <climits>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Gives every test a store of its own, even when several run at the same time.
class AppSettingsTest : public testing::Test {
protected:
    AppSettingsTest() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        QCoreApplication::setApplicationName(u"%1-%2"_s.arg(QString::fromLatin1(test->name()))
                                                 .arg(QCoreApplication::applicationPid()));
        iStoreFile = QSettings().fileName();
    }
    ~AppSettingsTest() override {
        QSettings().clear();
        QFile::remove(iStoreFile);
        QCoreApplication::setApplicationName(iFormerName);
    }
    QString iFormerName = QCoreApplication::applicationName();
    QString iStoreFile;
};

} // namespace

TEST_F(AppSettingsTest, BringsBackEverythingButThePageSize) {
    const QVariantMap values{{"lastImportedFile", "/a, \"b\"/ü=1;@%.pdf"},
                             {"importPageRange", "1,3-5"},
                             {"lastOutputFileFolder", "/a b/"},
                             {"lastOutputFileName", ""},
                             {"lastOutputFileTitle", "@title\n"},
                             {"importPageRangeType", 2},
                             {"importQualityLevel", -7},
                             {"outputType", 3},
                             {"importBookmark", 4},
                             {"importLinks", 5},
                             {"PageWidth", 612},
                             {"PageHeight", 792}};
    AppSettings settings;
    for (const QString& name : values.keys())
        ASSERT_TRUE(settings.setProperty(name.toLatin1().constData(), values[name]));
    settings.saveSettings();
    const AppSettings restarted;
    for (const QString& name : values.keys().filter(QRegularExpression("^(?!Page)")))
        EXPECT_EQ(restarted.property(name.toLatin1().constData()), values[name]);
    EXPECT_EQ(restarted.PageWidth(), 1080);
    EXPECT_EQ(restarted.PageHeight(), 1440);
    EXPECT_EQ(QSettings().value("PageWidth").toInt(), 612);
}

TEST_F(AppSettingsTest, ResetsOnlyTheSettingWhoseEntryIsGone) {
    AppSettings settings;
    settings.setLastOutputFileName("name");
    settings.setOutputType(1);
    settings.setImportBookmark(1);
    settings.saveSettings();
    settings.setLastOutputFileName(QString());
    settings.saveSettings();
    EXPECT_FALSE(QSettings().contains("lastOutputFileName"));
    QSettings().remove("outputType");
    const AppSettings restarted;
    EXPECT_TRUE(restarted.lastOutputFileName().isEmpty());
    EXPECT_FALSE(restarted.lastOutputFileName().isNull());
    EXPECT_EQ(restarted.outputType(), 0);
    EXPECT_EQ(restarted.importBookmark(), 1);
}

TEST_F(AppSettingsTest, FindsPublishedBooksWhateverTheirNumberIsSaidToBe) {
    PublishedBooks::add("/a.pdf", {"/books", "a", "A", {}, {}, "/books/a"});
    for (const int size : {INT_MAX, -1}) {
        QSettings().setValue("publishedBooks/size", size);
        EXPECT_EQ(PublishedBooks::of("/a.pdf").has_value(), size > 0);
    }
}
