#include "output/PublishTransaction.h"

#include "platform/PlatformException.h"
#include "support/BookReader.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Transaction : public testing::Test {
protected:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    QStringList files() const { return BookReader::filesBeneath(folder.path()); }
    QStringList entries() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
};

TEST_F(Transaction, ChangesNothingBeforeItsCommit) {
    TestFiles::write(path("a"), "old");
    TestFiles::write(path("b"), "old");
    PublishTransaction run(folder.path());
    run.write(path("a"), "new");
    run.remove(path("b"));
    run.makeFolder(path("c/d"));
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_TRUE(QFileInfo::exists(path("b")));
    EXPECT_FALSE(QFileInfo::exists(path("c")));
    EXPECT_TRUE(run.willExist(path("a")));
    EXPECT_FALSE(run.willExist(path("b")));
    EXPECT_TRUE(run.willExist(path("c/d")));
    run.commit();
    EXPECT_EQ(TestFiles::read(path("a")), "new");
    EXPECT_FALSE(QFileInfo::exists(path("b")));
    EXPECT_TRUE(QFileInfo(path("c/d")).isDir());
}

TEST_F(Transaction, LeavesNothingOfItselfBehind) {
    TestFiles::write(path("a"), "old");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("b/c"), "new");
        run.commit();
    }
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    {
        PublishTransaction run(path("new/folder"));
        run.write(path("new/folder/a"), "x");
    }
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(Transaction, TakesTheLastWordOnAFile) {
    TestFiles::write(path("a"), "old");
    PublishTransaction run(folder.path());
    run.write(path("a"), "first");
    run.write(path("./a"), "second");
    run.write(path("b"), "x");
    run.remove(path("b"));
    run.remove(path("c"));
    run.write(path("c"), "back");
    run.commit();
    EXPECT_EQ(TestFiles::read(path("a")), "second");
    EXPECT_FALSE(QFileInfo::exists(path("b")));
    EXPECT_EQ(TestFiles::read(path("c")), "back");
}

TEST_F(Transaction, LeavesFilesAloneThatAreAsTheyShouldBe) {
    const auto inode = [&](const char* name) {
        struct stat info {};
        return ::stat(QFile::encodeName(path(name)).constData(), &info) == 0 ? info.st_ino : 0;
    };
    for (const char* name : {"same", "longer", "other", "shared", "gone"})
        TestFiles::write(path(name), "old");
    // What somebody else has too may be changed there.
    std::filesystem::create_hard_link(path("shared").toStdString(), path("twin").toStdString());
    const auto same = inode("same");
    const auto shared = inode("shared");
    PublishTransaction run(folder.path());
    run.write(path("same"), "old");
    run.write(path("longer"), "old and more");
    run.write(path("other"), "new");
    run.write(path("shared"), "old");
    run.remove(path("gone"));
    run.commit();
    EXPECT_EQ(inode("same"), same);
    EXPECT_NE(inode("shared"), shared);
    EXPECT_EQ(inode("twin"), shared);
    EXPECT_EQ(TestFiles::read(path("longer")), "old and more");
    EXPECT_EQ(TestFiles::read(path("other")), "new");
    EXPECT_EQ(run.counts().written, 3);
    EXPECT_EQ(run.counts().unchanged, 1);
    EXPECT_EQ(run.counts().removed, 1);
}

TEST_F(Transaction, PutsBackWhatItReplacedWhenALaterFileCannotBePlaced) {
    TestFiles::write(path("a"), "old");
    TestFiles::write(path("taken/inside"), "x");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("new/b"), "new");
        run.remove(path("taken/inside"));
        run.write(path("taken"), "new");
        EXPECT_THROW(run.commit(), PlatformException);
    }
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_EQ(entries(), (QStringList{QStringLiteral("a"), QStringLiteral("taken")}));
    EXPECT_EQ(TestFiles::read(path("taken/inside")), "x");
}

TEST_F(Transaction, NamesTheFileAndTheCauseOfAFailure) {
    TestFiles::write(path("file"), "x");
    PublishTransaction run(folder.path());
    run.write(path("file/beneath"), "x");
    try {
        run.commit();
        FAIL() << "a file was written beneath a file";
    } catch (const PlatformException& failure) {
        EXPECT_EQ(failure.reason(), path("file") + QStringLiteral(": File exists"));
    }
}

TEST_F(Transaction, ReplacesALinkNotWhatItPointsTo) {
    TestFiles::write(path("outside"), "kept");
    ASSERT_TRUE(QFile::link(path("outside"), path("a")));
    ASSERT_TRUE(QFile::link(path("missing"), path("b")));
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("b"), "new");
        run.commit();
    }
    EXPECT_EQ(TestFiles::read(path("outside")), "kept");
    EXPECT_EQ(TestFiles::read(path("a")), "new");
    EXPECT_FALSE(QFileInfo(path("b")).isSymLink());
}

TEST_F(Transaction, LeavesALinkInItsPlaceUntilTheFileIsThere) {
    TestFiles::write(path("outside"), "kept");
    ASSERT_TRUE(QFile::link(path("outside"), path("a")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    for (const char* name : {"a", "pipe"}) {
        PublishTransaction run(folder.path());
        run.stage(path(name)); // and never written, so that it can't be put in place
        EXPECT_THROW(run.commit(), PlatformException);
        struct stat info {};
        EXPECT_EQ(::lstat(QFile::encodeName(path(name)).constData(), &info), 0)
            << "a kill at this moment would lose it";
    }
    EXPECT_EQ(QFileInfo(path("a")).symLinkTarget(), path("outside"));
    EXPECT_EQ(TestFiles::read(path("outside")), "kept");
}

TEST_F(Transaction, PutsALinkBackThatItReplaced) {
    TestFiles::write(path("outside"), "kept");
    ASSERT_TRUE(QFile::link(path("outside"), path("a")));
    TestFiles::write(path("taken/inside"), "x");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.write(path("taken"), "new");
        EXPECT_THROW(run.commit(), PlatformException);
        EXPECT_EQ(TestFiles::read(path("a")), "new");
    }
    EXPECT_EQ(QFileInfo(path("a")).symLinkTarget(), path("outside"));
    EXPECT_EQ(TestFiles::read(path("outside")), "kept");
}

// A folder with a linked folder in it, as somebody may hand it on.
class LinkedFolder : public Transaction {
protected:
    LinkedFolder() {
        TestFiles::write(outside.filePath(QStringLiteral("a")), "kept");
        TestFiles::write(outside.filePath(QStringLiteral("b")), "kept");
        QFile::link(outside.path(), path("linked"));
    }
    void expectOutsideUntouched() const {
        EXPECT_EQ(BookReader::filesBeneath(outside.path()),
                  (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
        EXPECT_EQ(TestFiles::read(outside.filePath(QStringLiteral("a"))), "kept");
    }

    QTemporaryDir outside;
};

TEST_F(LinkedFolder, BecomesAFolderOfItsOwn) {
    {
        PublishTransaction run(folder.path());
        EXPECT_FALSE(run.willExist(path("linked/b")));
        run.makeFolder(path("linked/inner"));
        run.write(path("linked/a"), "new");
        run.write(path("linked/deep/c"), "new");
        run.commit();
    }
    expectOutsideUntouched();
    EXPECT_FALSE(QFileInfo(path("linked")).isSymLink());
    EXPECT_EQ(TestFiles::read(path("linked/a")), "new");
    EXPECT_TRUE(QFileInfo(path("linked/inner")).isDir());
    EXPECT_EQ(files(), (QStringList{QStringLiteral("linked/a"), QStringLiteral("linked/deep/c")}));
}

TEST_F(LinkedFolder, KeepsTheFilesBehindItThatAreToBeRemoved) {
    {
        PublishTransaction run(folder.path());
        run.remove(path("linked/a"));
        run.commit();
    }
    expectOutsideUntouched();
    EXPECT_TRUE(QFileInfo(path("linked")).isSymLink());
}

TEST_F(LinkedFolder, IsPutBackWhenTheRunFails) {
    TestFiles::write(path("taken/inside"), "x");
    {
        PublishTransaction run(folder.path());
        run.write(path("linked/deep/a"), "new");
        run.write(path("taken"), "new");
        EXPECT_THROW(run.commit(), PlatformException);
    }
    expectOutsideUntouched();
    EXPECT_EQ(QFileInfo(path("linked")).symLinkTarget(), outside.path());
}

TEST_F(LinkedFolder, MayBeTheFolderOfTheRunItself) {
    {
        PublishTransaction run(path("linked/"));
        run.write(path("linked/a"), "new");
        run.write(path("linked/c/d"), "new");
        run.commit();
    }
    EXPECT_TRUE(QFileInfo(path("linked")).isSymLink());
    EXPECT_EQ(BookReader::filesBeneath(outside.path()),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c/d")}));
    EXPECT_EQ(TestFiles::read(outside.filePath(QStringLiteral("a"))), "new");
}

TEST_F(Transaction, WritesIntoTheCurrentFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    {
        PublishTransaction run(QStringLiteral("."));
        run.write(QStringLiteral("a"), "x");
        run.write(QStringLiteral("b/c"), "x");
        run.commit();
    }
    QDir::setCurrent(before);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a"), QStringLiteral("b/c")}));
}

TEST_F(Transaction, ClearsAwayOnlyWhatDeadProcessesLeft) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ::waitpid(child, nullptr, 0);
    const QString stale = path(".folvero-publish-%1-abcdef").arg(child);
    const QString live = path(".folvero-publish-%1-abcdef").arg(::getppid());
    for (const QString& name : {stale, live})
        TestFiles::write(name + QStringLiteral("/1"), "x");
    { const PublishTransaction run(folder.path()); }
    EXPECT_FALSE(QFileInfo::exists(stale));
    EXPECT_TRUE(QFileInfo::exists(live));
    EXPECT_EQ(files().size(), 1);
}

TEST_F(Transaction, ClearsAwayWhatADeadProcessLeftWhoseNumberIsTakenAgain) {
    const QString left = path(".folvero-publish-%1-abcdef").arg(::getppid());
    TestFiles::write(left + QStringLiteral("/1"), "x");
    ::chmod(QFile::encodeName(left).constData(), 01700);
    { const PublishTransaction run(folder.path()); }
    EXPECT_FALSE(QFileInfo::exists(left));
}

TEST_F(Transaction, ClearsNothingAwayBehindALink) {
    const QTemporaryDir outside;
    TestFiles::write(outside.filePath(QStringLiteral("file")), "kept");
    const QString trap = path(".folvero-publish-999999999-abcdef");
    ASSERT_TRUE(QFile::link(outside.path(), trap));
    { const PublishTransaction run(folder.path()); }
    EXPECT_TRUE(QFileInfo::exists(outside.filePath(QStringLiteral("file"))));
}

TEST_F(Transaction, SurvivesTheDeathOfTheProcess) {
    TestFiles::write(path("a"), "old");
    const pid_t child = ::fork();
    if (child == 0) {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_EQ(TestFiles::read(path("a")), "old");
    EXPECT_EQ(files().size(), 2);
    { const PublishTransaction run(folder.path()); }
    EXPECT_EQ(entries(), QStringList{QStringLiteral("a")});
}

} // namespace
