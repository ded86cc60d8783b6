#include "app/AppSettings.h"

#include "support/TemplateLibrary.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Gives every test a store of its own, even when several run at the same time.
class AppSettingsTest : public testing::Test {
protected:
    AppSettingsTest() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        QCoreApplication::setApplicationName(QStringLiteral("%1-%2")
                                                 .arg(QString::fromLatin1(test->name()))
                                                 .arg(QCoreApplication::applicationPid()));
        iStoreFile = QSettings().fileName();
    }
    ~AppSettingsTest() override {
        QSettings().clear();
        QFile::remove(iStoreFile);
        QCoreApplication::setApplicationName(iFormerName);
    }
    static void store(const char* key, const QVariant& value) {
        QSettings().setValue(QString::fromLatin1(key), value);
    }
    static QVariant stored(const char* key) { return QSettings().value(QString::fromLatin1(key)); }

    QString iFormerName = QCoreApplication::applicationName();
    QString iStoreFile;
};

} // namespace

TEST_F(AppSettingsTest, StartsEmptyWithADefaultPageSize) {
    const AppSettings settings;
    for (const QString& text :
         {settings.lastImportedFile(), settings.importPageRange(), settings.lastOutputFileFolder(),
          settings.lastOutputFileName(), settings.lastOutputFileTitle()}) {
        EXPECT_FALSE(text.isNull());
        EXPECT_TRUE(text.isEmpty());
    }
    for (const int number :
         {settings.importPageRangeType(), settings.importQualityLevel(), settings.outputType(),
          settings.importBookmark(), settings.importLinks()})
        EXPECT_EQ(number, 0);
    EXPECT_EQ(settings.PageWidth(), 1080);
    EXPECT_EQ(settings.PageHeight(), 1440);
}

TEST_F(AppSettingsTest, BringsBackEverythingButThePageSize) {
    AppSettings settings;
    settings.setLastImportedFile(QStringLiteral("/a, \"b\"/ü=1;@%.pdf"));
    settings.setImportPageRange(QStringLiteral("1,3-5"));
    settings.setLastOutputFileTitle(QStringLiteral("@title\n"));
    settings.setImportQualityLevel(-7);
    settings.setImportLinks(1);
    settings.setPageWidth(612);
    settings.saveSettings();
    ASSERT_TRUE(QFile::exists(iStoreFile)) << "saving doesn't reach the disk";

    const AppSettings restarted;
    EXPECT_EQ(restarted.lastImportedFile(), settings.lastImportedFile());
    EXPECT_EQ(restarted.importPageRange(), u"1,3-5");
    EXPECT_EQ(restarted.lastOutputFileTitle(), u"@title\n");
    EXPECT_EQ(restarted.importQualityLevel(), -7);
    EXPECT_EQ(restarted.importLinks(), 1);
    EXPECT_EQ(restarted.PageWidth(), 1080);
    EXPECT_EQ(stored("PageWidth").toInt(), 612);
}

TEST_F(AppSettingsTest, StoresEveryDeclaredSettingAndNoOther) {
    AppSettings().saveSettings();
    const QStringList expected{
        QStringLiteral("PageHeight"),           QStringLiteral("PageWidth"),
        QStringLiteral("importBookmark"),       QStringLiteral("importLinks"),
        QStringLiteral("importPageRange"),      QStringLiteral("importPageRangeType"),
        QStringLiteral("importQualityLevel"),   QStringLiteral("lastImportedFile"),
        QStringLiteral("lastOutputFileFolder"), QStringLiteral("lastOutputFileName"),
        QStringLiteral("lastOutputFileTitle"),  QStringLiteral("outputType")};
    QStringList keys = QSettings().allKeys();
    keys.sort();
    EXPECT_EQ(keys, expected);
}

TEST_F(AppSettingsTest, ResetsOnlyTheSettingWhoseEntryIsGone) {
    AppSettings settings;
    settings.setLastOutputFileName(QStringLiteral("name"));
    settings.setOutputType(1);
    settings.setImportBookmark(1);
    settings.saveSettings();
    QSettings().remove(QStringLiteral("lastOutputFileName"));
    QSettings().remove(QStringLiteral("outputType"));
    const AppSettings restarted;
    EXPECT_EQ(restarted.lastOutputFileName(), u"");
    EXPECT_EQ(restarted.outputType(), 0);
    EXPECT_EQ(restarted.importBookmark(), 1);
    // A later load has nothing to put in place of a number, while a text becomes none.
    settings.loadSettings();
    EXPECT_TRUE(settings.lastOutputFileName().isNull());
    EXPECT_EQ(settings.outputType(), 1);
    settings.saveSettings();
    EXPECT_FALSE(stored("lastOutputFileName").isValid());
}

TEST_F(AppSettingsTest, TakesEntriesOfTheWrongKind) {
    store("lastImportedFile", 42);
    store("outputType", QStringLiteral("word"));
    store("importLinks", QStringLiteral("1"));
    const AppSettings settings;
    EXPECT_EQ(settings.lastImportedFile(), u"42");
    EXPECT_EQ(settings.outputType(), 0);
    EXPECT_EQ(settings.importLinks(), 1);
}

TEST_F(AppSettingsTest, ReadsAStoreEditedByHand) {
    TestFiles::write(iStoreFile, "[General]\nimportPageRange=1,3-5\nimportLinks=1\n");
    const AppSettings settings;
    EXPECT_EQ(settings.importPageRange(), u"1,3-5");
    EXPECT_EQ(settings.importLinks(), 1);
}

TEST_F(AppSettingsTest, SharesOneObjectAmongThreads) {
    AppSettings* other = nullptr;
    std::thread([&other] { other = &AppSettings::shareInstance(); }).join();
    EXPECT_EQ(other, &AppSettings::shareInstance());
}
