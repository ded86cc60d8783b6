#include "app/AppSettings.h"

#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kills = 50;

// Has another process save by turns the one state and the other, and kills it, again and again:
// the file must then be whole and one of the two, and saving must go on working.
void saveAndKill(const QString& file, const std::function<void(bool isNew)>& save) {
    const auto start = std::chrono::steady_clock::now();
    save(false);
    const QByteArray before = TestFiles::read(file);
    save(true);
    const QByteArray after = TestFiles::read(file);
    // Long enough for either to be found, however slow the disk or a sanitizer makes it.
    const auto twice = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - start);
    const int longest = int(std::clamp<std::int64_t>(4 * twice.count(), 30'000, 300'000));
    ASSERT_NE(before, after);
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    int found[2] = {0, 0};
    for (int kill = 0; kill < kills; ++kill) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            // The first time it may have to wait for the lock of the one that was killed.
            save(true);
            ::close(ends[1]);
            for (bool isNew = false;; isNew = !isNew)
                save(isNew);
        }
        ::close(ends[1]);
        char none = 0;
        EXPECT_EQ(::read(ends[0], &none, 1), 0);
        ::close(ends[0]);
        std::this_thread::sleep_for(
            std::chrono::microseconds(std::uniform_int_distribution<>(0, longest)(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const QByteArray now = TestFiles::read(file);
        ASSERT_TRUE(now == before || now == after)
            << "kill " << kill << ": " << now.size() << " bytes";
        ++found[now == after ? 1 : 0];
    }
    EXPECT_GT(found[0], 0);
    EXPECT_GT(found[1], 0);
    save(false);
    EXPECT_EQ(TestFiles::read(file), before);
}

} // namespace

TEST(SettingsCrash, LeavesTheUsersSettingsWhole) {
    const QString former = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(u"crash-%1"_s.arg(QCoreApplication::applicationPid()));
    const QString file = QSettings().fileName();
    AppSettings settings;
    saveAndKill(file, [&settings](bool isNew) {
        const QString text(20'000, isNew ? u'n' : u'o');
        settings.setLastImportedFile(text);
        settings.setLastOutputFileTitle(text);
        settings.saveSettings();
    });
    // With what killed processes leave beside it.
    const QDir folder = QFileInfo(file).dir();
    for (const QString& name : folder.entryList({QFileInfo(file).fileName() + u'*'}, QDir::Files))
        QFile::remove(folder.filePath(name));
    QCoreApplication::setApplicationName(former);
}

TEST(SettingsCrash, LeavesASettingsFileWhole) {
    TemplateLibrary library;
    library.addTemplate("float",
                        TemplateLibrary::property("a", {}) + TemplateLibrary::property("b", {}));
    FlashTemplate tmpl;
    const QTemporaryDir folder;
    const QString file = folder.filePath("my.txt");
    saveAndKill(file, [&](bool isNew) {
        const QString text(20'000, isNew ? u'n' : u'o');
        tmpl.setPropertyValue("a", text);
        tmpl.setPropertyValue("b", text);
        EXPECT_TRUE(tmpl.exportPropertiesSettingsTo(file));
    });
}
