#include "app/AppSettings.h"

#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
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

constexpr int kills = 20;

// Kills a process that saves by turns the one state and the other, again and again: the file must
// always be whole and one of the two, and saving must go on working.
void saveAndKill(const QString& file, const std::function<void(bool isNew)>& save) {
    QSet<QByteArray> states;
    for (const bool isNew : {true, false}) {
        save(isNew);
        states << TestFiles::read(file);
    }
    ASSERT_EQ(states.size(), 2);
    const QByteArray old = TestFiles::read(file);
    std::mt19937 random(std::random_device{}());
    for (int kill = 0; kill < kills; ++kill) {
        const pid_t child = ::fork();
        if (child == 0) {
            ::alarm(60);
            for (bool isNew = false;; isNew = !isNew)
                save(isNew);
        }
        QSet<QByteArray> found;
        while (found.size() < 2)
            found << TestFiles::read(file);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        found << TestFiles::read(file);
        ASSERT_EQ(found, states) << "kill " << kill;
    }
    save(false);
    EXPECT_EQ(TestFiles::read(file), old);
}

} // namespace

TEST(SettingsCrash, LeavesTheUsersSettingsWhole) {
    const QString former = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(u"crash-%1"_s.arg(QCoreApplication::applicationPid()));
    const QString file = QSettings().fileName();
    AppSettings settings;
    saveAndKill(file, [&settings](bool isNew) {
        settings.setLastImportedFile(QString(20'000, isNew ? u'n' : u'o'));
        settings.setLastOutputFileTitle(settings.lastImportedFile());
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
    library.addTemplate("float", TemplateLibrary::property("a", {}));
    FlashTemplate tmpl;
    const QTemporaryDir folder;
    const QString file = folder.filePath("my.txt");
    saveAndKill(file, [&](bool isNew) {
        tmpl.setPropertyValue("a", QString(40'000, isNew ? u'n' : u'o'));
        EXPECT_TRUE(tmpl.exportPropertiesSettingsTo(file));
    });
}
