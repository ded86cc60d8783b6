#include "builder/PDFBuilder.h"
#include "desktop/Scenario.h"
#include "project/ProjectFile.h"
#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/LockedFolder.h"

#include <QTemporaryDir>
#include <QtCore>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <random>
#include <thread>

namespace {

// Somebody's work in the desktop program, which is killed again and again, and started anew by the
// next one. The number of kills is that of the variable FOLVERO_KILLS, at random calls, or few at
// calls that are spread over all.
class KilledProgram : public testing::Test {
protected:
    KilledProgram() {
        for (const int pages : {2, 3}) {
            iDocuments[pages] = PDFBuilder::blank(pages, {300, 400});
            TestFiles::write(path(QString::number(pages) + ".pdf"), iDocuments[pages]);
        }
        // Not by the time, but when the work says so.
        TestFiles::write(path("config/Folvero/Folvero.conf"), "[General]\nautosaveSeconds=3600\n");
        for (const char* folder : {"home", "data", "cache", "tmp"})
            QDir(files.path()).mkdir(folder);
    }

    QString path(const QString& name) const { return files.filePath(name); }

    // Ends before the call of that number; runs to its end where that is 0 or too large.
    void work(int run, long killAt) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const auto& [variable, folder] : {std::pair("HOME", "home"),
                                               {"XDG_CONFIG_HOME", "config"},
                                               {"XDG_DATA_HOME", "data"},
                                               {"XDG_CACHE_HOME", "cache"},
                                               {"TMPDIR", "tmp"}})
            environment.insert(variable, path(folder));
        environment.insert("LD_PRELOAD", FOLVERO_KILL_POINT);
        environment.insert("FOLVERO_KILL_AT", QString::number(killAt));
        environment.insert("FOLVERO_KILL_LOG", path("calls"));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      {Scenario::option, files.path(), QString("run %1").arg(run)});
        const auto result = Program::finish(process);
        wasKilled = result.exitCode == -1;
        EXPECT_TRUE(wasKilled || result.exitCode == 0) << result.errors.constData();
        takeCalls();
        takeJournal();
    }

    void takeCalls() {
        calls = QString::fromUtf8(TestFiles::read(path("calls"))).split('\n', Qt::SkipEmptyParts);
        for (const QString& call : calls) {
            if (call.startsWith("made "))
                workFolders << call.mid(5);
        }
        calls.removeIf([](const QString& call) { return call.startsWith("made "); });
        QFile::remove(path("calls"));
    }

    // What has to be there afterwards, by what was noted.
    void takeJournal() {
        const QStringList steps =
            QString::fromUtf8(Files::contents(path(Scenario::journal))).split('\n');
        QFile::remove(path(Scenario::journal));
        for (const QString& step : steps) {
            const QString state = step.section(' ', 1);
            if (step.startsWith("back ")) {
                if (iDemo.isNull())
                    iDemo = state;
                EXPECT_TRUE(kept.isEmpty() || kept.contains(state))
                    << state.toStdString() << " is none of " << kept.join(", ").toStdString();
                kept = QStringList{state};
            } else if (step.startsWith("keeping ") || step.startsWith("saving ")) {
                kept << state;
                if (step.startsWith("saving "))
                    saved << state;
            } else if (step.startsWith("kept ")) {
                kept = QStringList{state};
            } else if (step.startsWith("saved ")) {
                kept = saved = QStringList{state};
            } else if (step.startsWith("publishing ")) {
                published << state;
            } else if (step.startsWith("published ")) {
                published = QStringList{state};
            } else {
                EXPECT_TRUE(step.isEmpty() || step == "recovering" || step == "end")
                    << step.toStdString();
            }
        }
    }

    // With the demo book, without a project.
    void startAnew() {
        QFile::remove(path(Scenario::project));
        QDir(path(Scenario::published)).removeRecursively();
        QDir(path("data/Folvero/recovery")).removeRecursively();
        kept = QStringList{iDemo};
        saved = published = QStringList{""};
    }

    void checkProject() {
        if (!QFile::exists(path(Scenario::project))) {
            EXPECT_EQ(saved.front(), "");
            return;
        }
        const Project project = ProjectFile::read(path(Scenario::project));
        const auto value = std::find_if(project.values.begin(), project.values.end(),
                                        [](auto& each) { return each.key == "TutorialTitle"; });
        ASSERT_NE(value, project.values.end());
        const QString pages = QFileInfo(project.documents.at(0).path).completeBaseName();
        const QString state = value->text + " / " + pages;
        EXPECT_TRUE(saved.contains(state))
            << state.toStdString() << " is none of " << saved.join(", ").toStdString();
        // What was kept before is older.
        if (saved.size() > 1 && state == saved.back())
            kept = QStringList{state};
    }

    // Once the guard of a killed program is done.
    void checkPublished() const {
        const QString book = path(Scenario::published);
        const FileDescriptor folder(::open(QFile::encodeName(book).constData(), O_RDONLY));
        for (const QString& name :
             QDir(book).entryList({".folvero-publish-*"}, QDir::Dirs | QDir::Hidden)) {
            while (LockedFolder::isLocked(folder.number(), QFile::encodeName(name)))
                std::this_thread::yield();
        }
        if (!QFile::exists(book + "/index.html")) {
            EXPECT_EQ(published.front(), "");
            return;
        }
        const BookElement configuration = BookReader::configuration(book);
        const auto& pages = configuration.at("Ppts").children;
        const QString state = configuration.textAt("Properties/TutorialTitle") + " / " +
                              QString::number(pages.size());
        EXPECT_TRUE(published.contains(state))
            << state.toStdString() << " is none of " << published.join(", ").toStdString();
        for (const QString& name : QDir(book + "/files/page").entryList(QDir::Files))
            EXPECT_LE(QFileInfo(name).baseName().toInt(), int(pages.size())) << name.toStdString();
        for (std::size_t page = 1; page <= pages.size(); ++page)
            EXPECT_FALSE(
                QDir(book + "/files/page").entryList({QString("%1.*").arg(page)}).isEmpty());
    }

    void checkDocuments() const {
        for (const auto& [pages, content] : iDocuments)
            EXPECT_EQ(TestFiles::read(path(QString::number(pages) + ".pdf")), content);
    }

    // After a run that came to its end.
    void checkLitter() const {
        QStringList left;
        QDirIterator all(files.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString name = QDir(files.path()).relativeFilePath(all.next());
            // QSettings leaves the file through which it was just writing its own.
            static const QRegularExpression expected(
                "^([23]\\.pdf|book\\.folvero|out/(?!\\.folvero-publish).*"
                "|config/Folvero/Folvero\\.conf(\\.\\w+)?|data/Tessamar/.*|data/Folvero/recent/.*"
                "|cache/.*|usr/.*|Library/.*|home/.*)$");
            if (!expected.match(name).hasMatch())
                left << name;
        }
        EXPECT_TRUE(left.isEmpty()) << left.join('\n').toStdString();
        for (const QString& folder : workFolders)
            EXPECT_FALSE(QFile::exists(folder)) << folder.toStdString();
    }

    QTemporaryDir files;
    bool wasKilled = false;
    QStringList calls;       // of the last run
    QStringList workFolders; // of all runs
    // What the program may come back with, and what project and book may have: what was there, or
    // what was being written. Empty for nothing, and for the demo book.
    QStringList kept, saved{""}, published{""};

private:
    std::map<int, QByteArray> iDocuments;
    QString iDemo; // the state of the program that has nothing to come back with
};

} // namespace

TEST_F(KilledProgram, LosesNothingThatWasKeptAndLeavesNothingBehind) {
    work(0, 0);
    ASSERT_FALSE(wasKilled);
    const long all = calls.size();
    checkLitter();
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("FOLVERO_KILLS", &isNumber);
    const int kills = isNumber ? asked : 8;
    std::mt19937 random(std::random_device{}());
    int killed = 0;
    for (int run = 1; killed < kills && !HasFailure(); ++run) {
        const long at = isNumber ? std::uniform_int_distribution<long>(1, all)(random)
                                 : all * (2 * run - 1) / (2 * kills);
        if (run % 5 == 1)
            startAnew();
        work(run, at);
        const QString last = calls.isEmpty() ? QString() : calls.back();
        SCOPED_TRACE("run " + std::to_string(run) + ", call " + std::to_string(at) + ": " +
                     last.toStdString());
        killed += wasKilled ? 1 : 0;
        checkProject();
        checkPublished();
        checkDocuments();
        if (isNumber && run % 10 == 0)
            std::cout << killed << " kills in " << run << " runs\n" << std::flush;
    }
    work(0, 0);
    EXPECT_FALSE(wasKilled);
    checkProject();
    checkPublished();
    checkLitter();
}
