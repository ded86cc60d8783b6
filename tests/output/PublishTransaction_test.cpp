#include "output/CommitGuard.h"
#include "output/CommitSwitch.h"
#include "output/FolderCommit.h"
#include "output/PublishTransaction.h"

#include "support/FailureOf.h"
#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"
#include "system/FileDescriptor.h"
#include "system/LockedFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>

namespace {

// All that lies beneath a folder: "FILE=CONTENT", "LINK->TARGET" and "FOLDER/", with blanks
// between.
QString state(const QString& folder) {
    QStringList entries;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QFileInfo info(each.next());
        const QString name = QDir(folder).relativeFilePath(info.filePath());
        if (info.isSymLink())
            entries << name + "->" + QFileInfo(info.symLinkTarget()).fileName();
        else
            entries << (info.isDir() ? name + '/' : name + '=' + TestFiles::read(info.filePath()));
    }
    entries.sort();
    return entries.join(' ');
}

class Transaction : public testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const QByteArray& content = "old") const {
        TestFiles::write(path(name), content);
    }
    QByteArray read(const QString& name) const { return TestFiles::read(path(name)); }
    bool exists(const QString& name) const { return QFileInfo::exists(path(name)); }
    ino_t inode(const QString& name) const {
        struct stat info {};
        return ::lstat(QFile::encodeName(path(name)).constData(), &info) == 0 ? info.st_ino : 0;
    }

    QTemporaryDir folder;
};

TEST_F(Transaction, ChangesNothingBeforeItsCommit) {
    write("a");
    write("b");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        run.remove(path("b"));
        run.makeFolder(path("c/d"));
        EXPECT_EQ(read("a"), "old");
        EXPECT_TRUE(exists("b") && !exists("c"));
        EXPECT_TRUE(run.willExist(path("a")) && run.willExist(path("c/d")));
        EXPECT_FALSE(run.willExist(path("b")));
        run.commit();
    }
    EXPECT_EQ(state(folder.path()), "a=new c/ c/d/");
    PublishTransaction(path("new/folder")).write(path("new/folder/a"), "x");
    EXPECT_THROW(PublishTransaction(path("new/" + QString(300, 'x'))), PlatformException);
    EXPECT_EQ(state(folder.path()), "a=new c/ c/d/");
}

TEST_F(Transaction, TakesTheLastWordOnAFile) {
    write("a");
    {
        PublishTransaction run(folder.path());
        run.write(path("a"), "first");
        run.write(path("./a"), "second");
        run.write(path("b"), "x");
        run.remove(path("b"));
        run.remove(path("c"));
        run.write(path("c"), "back");
        run.commit();
    }
    EXPECT_EQ(state(folder.path()), "a=second c=back");
}

TEST_F(Transaction, LeavesFilesAloneThatAreAsTheyShouldBe) {
    for (const char* name : {"same", "longer", "other", "shared", "private", "gone"})
        write(name);
    // What somebody else has too may be changed there.
    std::filesystem::create_hard_link(path("shared").toStdString(), path("twin").toStdString());
    const auto same = inode("same");
    ::chmod(QFile::encodeName(path("private")).constData(), 0600);
    PublishTransaction run(folder.path());
    run.write(path("same"), "old");
    run.write(path("longer"), "old and more");
    run.write(path("other"), "new");
    run.write(path("shared"), "old");
    run.write(path("private"), "old");
    run.remove(path("gone"));
    run.commit();
    EXPECT_EQ(inode("same"), same);
    EXPECT_NE(inode("shared"), inode("twin"));
    EXPECT_EQ(read("longer") + read("other"), "old and morenew");
    EXPECT_EQ(run.counts().written, 4);
    EXPECT_EQ(run.counts().unchanged, 1);
    EXPECT_EQ(run.counts().removed, 1);
}

TEST_F(Transaction, KeepsWhatElseIsInAFolderThatItChanges) {
    for (const char* name : {"files/page/1", "files/page/2", "files/own/.hidden"})
        write(name);
    ASSERT_TRUE(QFile::link(path("outside"), path("files/own/link")));
    const QByteArray own = QFile::encodeName(path("files/own"));
    const timespec times[]{{1, 0}, {1, 0}};
    ASSERT_EQ(::chmod(own.constData(), 02750), 0);
    const bool hasAttributes = ::setxattr(own.constData(), "user.note", "x", 1, 0) == 0;
    ASSERT_EQ(::utimensat(AT_FDCWD, own.constData(), times, 0), 0);
    const auto before = inode("files/page/2");
    {
        PublishTransaction run(folder.path());
        run.write(path("files/page/1"), "new");
        run.commit();
    }
    EXPECT_EQ(state(path("files")),
              "own/ own/.hidden=old own/link->outside page/ page/1=new page/2=old");
    EXPECT_EQ(inode("files/page/2"), before);
    struct stat info {};
    ASSERT_EQ(::stat(own.constData(), &info), 0);
    EXPECT_EQ(info.st_mode, mode_t(S_IFDIR | 02750));
    EXPECT_EQ(info.st_mtim.tv_sec, 1);
    EXPECT_EQ(::getxattr(own.constData(), "user.note", nullptr, 0), hasAttributes ? 1 : -1);
}

TEST_F(Transaction, ChangesFilesOneByOneWhereAFolderOfAnotherUserIsBesideThem) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    for (const char* name : {"files/page/1", "files/page/gone", "files/theirs/a"})
        write(name);
    for (const char* name : {"", "files", "files/page", "files/page/1", "files/page/gone"})
        ASSERT_EQ(::chown(QFile::encodeName(path(name)).constData(), 65534, 65534), 0);
    const auto before = inode("files/theirs");
    ::setfsgid(65534);
    ::setfsuid(65534);
    {
        PublishTransaction run(folder.path());
        run.write(path("files/page/1"), "new");
        run.write(path("files/new/2"), "new");
        run.remove(path("files/page/gone"));
        EXPECT_TRUE(failureOf([&] { run.commit(); }).message.isNull());
    }
    ::setfsuid(0);
    ::setfsgid(0);
    EXPECT_EQ(state(folder.path()), "files/ files/new/ files/new/2=new files/page/ "
                                    "files/page/1=new files/theirs/ files/theirs/a=old");
    EXPECT_EQ(inode("files/theirs"), before);
}

TEST_F(Transaction, FailsWhenItsFolderIsMovedAwayAndChangesNothingThere) {
    write("book/a");
    {
        PublishTransaction run(path("book"));
        run.write(path("book/a"), "new");
        ASSERT_TRUE(QDir().rename(path("book"), path("elsewhere")));
        EXPECT_THROW(run.commit(), PlatformException);
    }
    EXPECT_FALSE(exists("book"));
    EXPECT_EQ(read("elsewhere/a"), "old");
}

TEST_F(Transaction, NamesTheFileAndTheCauseOfAFailure) {
    write("file");
    PublishTransaction run(folder.path());
    run.write(path("file/beneath"), "x");
    EXPECT_EQ(failureOf([&] { run.commit(); }).message.english(), path("file") + ": File exists");
    EXPECT_EQ(failureOf([&] { PublishTransaction(path("file/a/b")); }).message.english(),
              path("file") + ": File exists");
}

// With a link to a file and one to a folder, as somebody may hand it on, and a folder where a file
// is to be: the commit fails there.
class BlockedTransaction : public Transaction {
protected:
    BlockedTransaction() {
        TestFiles::write(outside.filePath("a"), "kept");
        TestFiles::write(outside.filePath("b"), "kept");
        write("file");
        write("blocked/inside");
        QFile::link(outside.filePath("a"), path("link"));
        QFile::link(outside.filePath("missing"), path("dangling"));
        QFile::link(outside.path(), path("linked"));
        before = state(folder.path());
    }
    ~BlockedTransaction() override { EXPECT_EQ(state(outside.path()), "a=kept b=kept"); }

    void unblock() const { QDir(path("blocked")).removeRecursively(); }

    QTemporaryDir outside;
    QString before;
};

TEST_F(BlockedTransaction, IsRolledBack) {
    {
        PublishTransaction run(folder.path());
        run.write(path("file"), "new");
        run.write(path("new/b"), "new");
        run.write(path("link"), "new");
        run.write(path("linked/deep/a"), "new");
        run.remove(path("blocked/inside"));
        run.write(path("blocked"), "new");
        EXPECT_THROW(run.commit(), PlatformException);
    }
    EXPECT_EQ(state(folder.path()), before);
}

TEST_F(BlockedTransaction, ReplacesALinkNotWhatItPointsTo) {
    unblock();
    {
        PublishTransaction run(folder.path());
        EXPECT_FALSE(run.willExist(path("linked/b")));
        run.write(path("link"), "new");
        run.write(path("dangling"), "new");
        run.makeFolder(path("linked/inner"));
        run.write(path("linked/deep/c"), "new");
        run.commit();
    }
    EXPECT_EQ(
        state(folder.path()),
        "dangling=new file=old link=new linked/ linked/deep/ linked/deep/c=new linked/inner/");
}

TEST_F(BlockedTransaction, KeepsTheFilesBehindALinkThatAreToBeRemoved) {
    {
        PublishTransaction run(folder.path());
        run.remove(path("linked/a"));
        run.commit();
    }
    EXPECT_EQ(state(folder.path()), before);
}

TEST_F(BlockedTransaction, LeavesALinkInItsPlaceUntilTheFileIsThere) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    for (const char* name : {"link", "pipe"}) {
        PublishTransaction run(folder.path());
        run.stage(path(name)); // and never written, so that it can't be renamed
        EXPECT_THROW(run.commit(), PlatformException);
        EXPECT_NE(inode(name), 0U) << "a kill at this moment would lose it";
    }
    EXPECT_EQ(QFileInfo(path("link")).symLinkTarget(), outside.filePath("a"));
}

TEST_F(Transaction, MayBeInALinkedFolderOrTheCurrentOne) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir().mkdir(path("real")) && QFile::link(path("real"), path("linked")));
    ASSERT_TRUE(QDir::setCurrent(path("linked/")));
    for (const QString& base : {path("linked/"), QString(".")}) {
        PublishTransaction run(base);
        run.write(base + "/a", "x");
        run.write(base + "/b/c", base.right(1).toUtf8());
        run.commit();
    }
    QDir::setCurrent(before);
    EXPECT_EQ(state(folder.path()), "linked->real real/ real/a=x real/b/ real/b/c=.");
}

TEST_F(Transaction, ClearsAwayOnlyWhatDeadProcessesLeft) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ::waitpid(child, nullptr, 0);
    const QString name = ".folvero-publish-%1-%2";
    const QString live = name.arg(::getppid()).arg("abcdef");
    const QString link = name.arg(999999999).arg("abcdef");
    // Locked by nobody, with the number of a process that lives again.
    const QString reused = name.arg(::getppid()).arg("uvwxyz");
    for (const QString& left : {name.arg(child).arg("abcdef"), live, reused})
        write(left + "/1");
    ::chmod(QFile::encodeName(path(reused)).constData(), 01700);
    write("outside/file");
    ASSERT_TRUE(QFile::link(path("outside"), path(link)));
    { const PublishTransaction run(folder.path()); }
    EXPECT_EQ(state(folder.path()),
              live + "/ " + live + "/1=old " + link + "->outside outside/ outside/file=old");
}

TEST_F(Transaction, SurvivesTheDeathOfTheProcess) {
    write("a");
    const pid_t child = ::fork();
    if (child == 0) {
        PublishTransaction run(folder.path());
        run.write(path("a"), "new");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(state(folder.path()).endsWith("a=old"));
    EXPECT_TRUE(state(folder.path()).contains("=new"));
    { const PublishTransaction run(folder.path()); }
    EXPECT_EQ(state(folder.path()), "a=old");
}

TEST_F(Transaction, KeepsWhatOthersPutIntoAFolderAfterItWasCopied) {
    for (const QString base : {"added", "edited"}) {
        write(base + "/files/1");
        {
            FolderCommit commit(path(base), path(base));
            commit.mayDelete("files");
            CommitSwitch& steps = commit.steps();
            TestFiles::write(commit.staging() + "/swap/files/1", "new");
            ASSERT_TRUE(steps.addReplacement("files"));
            for (const char* name : {"/files/late", "/files/sub/late", "/files/1"}) {
                if (base == "edited" || name[7] != '1')
                    write(base + name, "theirs");
            }
            const Message error = failureOf([&] { commit.commit(); }).message;
            const QString cause = ": it was changed while the book was published";
            EXPECT_EQ(error.english(),
                      base == "edited" ? path("edited/files/1") + cause : QString());
            EXPECT_EQ(error.isTemporary(), base == "edited");
        }
        EXPECT_EQ(state(path(base)),
                  "files/ files/1=" + QString(base == "added" ? "new" : "theirs") +
                      " files/late=theirs files/sub/ files/sub/late=theirs");
    }
}

// A program in the middle of a switch, which it may have done as a whole. Without a kill it is
// content with how things are.
[[noreturn]] void switchEntries(const QString& folder, bool isWhole, bool isKilled) {
    const QString staging = LockedFolder::make(folder + "/.folvero-publish-1-XXXXXX");
    for (const char* name : {"/swap/a", "/swap/b"})
        TestFiles::write(staging + name, "new");
    const FileDescriptor opened(::open(QFile::encodeName(folder).constData(), O_RDONLY));
    CommitSwitch steps(opened.number(), LockedFolder::descriptor(staging));
    steps.addReplacement("a");
    steps.addReplacement("b");
    steps.addRemoval("c");
    steps.writeJournal(staging, nullptr);
    {
        const CommitGuard guard(steps);
        steps.apply();
        if (!isWhole)
            QFile::rename(staging + "/away/c", folder + "/c");
        if (isKilled)
            ::raise(SIGKILL);
    }
    ::_exit(0);
}

TEST_F(Transaction, IsEndedOrUndoneByItsGuardWhenTheProgramIsKilled) {
    struct Case {
        bool isWhole, isKilled;
        const char* after;
    };
    for (const auto& [isWhole, isKilled, after] : {Case{false, true, "a=old c=old"},
                                                   {true, true, "a=new b=new"},
                                                   {false, false, "a=new b=new c=old journal"}}) {
        const QTemporaryDir book;
        for (const char* name : {"/a", "/c"})
            TestFiles::write(book.path() + name, "old");
        const pid_t child = ::fork();
        if (child == 0)
            switchEntries(book.path(), isWhole, isKilled);
        ::waitpid(child, nullptr, 0);
        const QString staging =
            QDir(book.path()).entryList({".folvero*"}, QDir::Dirs | QDir::Hidden).value(0);
        const FileDescriptor opened(::open(QFile::encodeName(book.path()).constData(), O_RDONLY));
        const auto isGuarded = [&] {
            return LockedFolder::isLocked(opened.number(), QFile::encodeName(staging));
        };
        for (int i = 0; i < 6000 && isGuarded(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_FALSE(isGuarded());
        const QString journal =
            CommitSwitch::hasJournal(book.filePath(staging)) ? " journal" : QString();
        ASSERT_TRUE(QDir(book.filePath(staging)).removeRecursively());
        EXPECT_EQ(state(book.path()) + journal, after);
    }
}

// What is left when a program and its guard are killed once all is exchanged.
class InterruptedSwitch : public Transaction {
protected:
    InterruptedSwitch() { interrupt(); }
    void interrupt() {
        opened.clear();
        for (const char* name : {"a", "c", "swap/a", "swap/b"})
            write(name[1] ? staging + name : name, name[1] ? "new" : "old");
        for (const QString& each : {folder.path(), path(staging)})
            opened.emplace_back(::open(QFile::encodeName(each).constData(), O_RDONLY));
        CommitSwitch steps(opened[0].number(), opened[1].number());
        EXPECT_TRUE(steps.addReplacement("a") && steps.addReplacement("b"));
        steps.addRemoval("c");
        RetiredEdition retired(opened[0].number(), opened[1].number());
        for (const char* name : {"a", "b", "c"}) {
            retired.list(opened[0].number(), name);
            retired.list(steps.swapFolder(), name);
        }
        EXPECT_TRUE(retired.write(path(staging), nullptr));
        EXPECT_TRUE(steps.writeJournal(path(staging), nullptr) && !steps.apply());
    }
    QString settled() const {
        PublishTransaction(folder.path());
        return state(folder.path());
    }

    const QString staging = ".folvero-publish-999999999-abcdef/";
    std::vector<FileDescriptor> opened;
};

TEST_F(InterruptedSwitch, StaysAsItIsWhenItWasComplete) {
    EXPECT_EQ(settled(), "a=new b=new");
}

TEST_F(InterruptedSwitch, GivesBackWhatIsNotOfTheEarlierEdition) {
    write(staging + "swap/late", "theirs");
    write(staging + "away/c", "edited");
    EXPECT_EQ(settled(), "a=new b=new c=edited late=theirs");
}

TEST_F(InterruptedSwitch, IsUndoneByTheNextTransaction) {
    ASSERT_TRUE(QFile::rename(path(staging + "away/c"), path("c")));
    EXPECT_EQ(settled(), "a=old c=old");
}

TEST_F(InterruptedSwitch, IsEndedByOneOfManyTransactions) {
    for (int round = 0; round < 50 && !HasFailure(); ++round) {
        QFile::remove(path("b"));
        interrupt();
        ASSERT_TRUE(QFile::rename(path(staging + "away/c"), path("c")));
        std::thread other([this] { EXPECT_NO_THROW(PublishTransaction{folder.path()}); });
        EXPECT_NO_THROW(PublishTransaction{folder.path()});
        other.join();
        EXPECT_EQ(state(folder.path()), "a=old c=old");
    }
}

TEST_F(InterruptedSwitch, KeepsTheEarlierFilesThatItCannotPutBack) {
    const RecordedLog log(Log::Level::error);
    ASSERT_TRUE(QFile::rename(path(staging + "away/c"), path("c")) && QFile::remove(path("a")));
    write("a", "somebody's");
    write("folvero-rescued-999999999/file", "of an earlier time");
    EXPECT_TRUE(settled().startsWith("a=somebody's c=old folvero-rescued-999999999-2/ "));
    EXPECT_EQ(read("folvero-rescued-999999999-2/swap/a"), "old");
    EXPECT_EQ(log.texts(), QStringList{"files could not be put back; they are in " +
                                       path("folvero-rescued-999999999-2")});
}

} // namespace
