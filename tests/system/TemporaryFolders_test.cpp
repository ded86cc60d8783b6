#include "system/TemporaryFolders.h"

#include "app/MirelUtility.h"
#include "support/TemplateLibrary.h"
#include "system/LockedFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <atomic>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int aWeek = 7 * 24 * 3600;

// A name of the test's own in the machine's temporary folder.
class TemporaryFoldersTest : public testing::Test {
protected:
    TemporaryFoldersTest() { clear(); }
    ~TemporaryFoldersTest() override { clear(); }

    // The same in processes that come from this one.
    const QString& name() const { return iName; }
    QString parent() const { return "/tmp/" + name(); }

    // The folder of a program that was killed while it worked.
    QString leftByAKilledRun(uid_t user = ::geteuid()) const {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            const QByteArray path =
                ::setuid(user) == 0 ? TemporaryFolders::make(name()).toUtf8() : "no such user";
            ::write(ends[1], path.constData(), size_t(path.size()));
            ::pause();
        }
        char path[200];
        const ssize_t size = ::read(ends[0], path, sizeof path);
        TestFiles::write(QString::fromUtf8(path, size) + "/1.jpg", "page");
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ::close(ends[1]);
        return QString::fromUtf8(path, size);
    }

    // A folder as versions made them that held no lock.
    QString unlocked(const QString& entry, int age, mode_t mode = 0700) const {
        const QString path = parent() + '/' + entry;
        TestFiles::write(path + "/1.jpg", "page");
        ::chmod(path.toUtf8().constData(), mode);
        const timespec then{::time(nullptr) - age, 0};
        const timespec times[]{then, then};
        EXPECT_EQ(::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0), 0);
        return path;
    }

    void clear() const {
        QFile::remove(parent()); // a link
        for (const QString& entry : QDir("/tmp").entryList({name(), name() + ".*"}, QDir::Dirs))
            QDir("/tmp/" + entry).removeRecursively();
    }

private:
    const QString iName = u"folvero-test-%1"_s.arg(QCoreApplication::applicationPid());
};

TEST_F(TemporaryFoldersTest, AreForTheirUserOnlyAndEmpty) {
    const QString path = MirelUtility::forceTmpDiractory(name());
    EXPECT_TRUE(QRegularExpression("^/tmp/[^/]+/temp\\.\\w{6}$").match(path).hasMatch());
    EXPECT_NE(MirelUtility::forceTmpDiractory(name()), path);
    struct stat info {};
    ASSERT_EQ(::stat(path.toUtf8().constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700U);
    EXPECT_TRUE(QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    TemporaryFolders::remove(path);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(TemporaryFoldersTest, OfKilledRunsGoAtTheNextStartAndOthersStay) {
    const QString mine = TemporaryFolders::make(name());
    const QString left = leftByAKilledRun();
    ASSERT_TRUE(QFileInfo::exists(left + "/1.jpg"));
    TemporaryFolders::make(name());
    EXPECT_FALSE(QFileInfo::exists(left));
    EXPECT_TRUE(QFileInfo::exists(mine));
}

TEST_F(TemporaryFoldersTest, StayWholeWhileManyProgramsStartAndClearAway) {
    std::vector<pid_t> children;
    for (int i = 0; i < 6; ++i) {
        leftByAKilledRun();
        const pid_t child = ::fork();
        if (child != 0) {
            children.push_back(child);
            continue;
        }
        bool wasWhole = true;
        for (int run = 0; run < 60; ++run) {
            const QString path = TemporaryFolders::make(name());
            TestFiles::write(path + "/1.jpg", "page");
            ::sched_yield();
            wasWhole = QFileInfo::exists(path + "/1.jpg") && wasWhole;
            TemporaryFolders::remove(path);
        }
        ::_exit(wasWhole ? 0 : 1);
    }
    for (const pid_t child : children) {
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(QDir(parent()).isEmpty());
}

TEST_F(TemporaryFoldersTest, WithoutALockGoAfterAWeekIfAllSpeaksForOneOfOurs) {
    const QString old = unlocked("temp.bbbbbb", aWeek + 60);
    const QString held = unlocked("temp.eeeeee", 2 * aWeek);
    QStringList kept{unlocked("temp.aaaaaa", aWeek - 60), unlocked("temp.cccccc", 2 * aWeek, 0755),
                     unlocked("temp.ddddddd", 2 * aWeek), unlocked("temp.dd-ddd", 2 * aWeek),
                     unlocked("other.aaaaaa", 2 * aWeek), held};
    const QString theirs = unlocked("temp.ffffff", 2 * aWeek, 01700);
    if (::chown(theirs.toUtf8().constData(), 65534, 65534) == 0) // needs root
        kept << theirs;
    const int lock = ::open(held.toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_SH), 0);
    TemporaryFolders::make(name());
    EXPECT_FALSE(QFileInfo::exists(old));
    for (const QString& path : kept)
        EXPECT_TRUE(QFileInfo::exists(path + "/1.jpg")) << path.toStdString();
    ::close(lock);
}

TEST_F(TemporaryFoldersTest, LeadNobodyToFilesElsewhere) {
    const QTemporaryDir elsewhere;
    ::chmod(elsewhere.path().toUtf8().constData(), 01700);
    TestFiles::write(elsewhere.filePath("file"), "kept");
    const QString left = leftByAKilledRun();
    ASSERT_TRUE(QFile::link(elsewhere.path(), parent() + "/temp.gggggg"));
    ASSERT_TRUE(QFile::link(elsewhere.path(), left + "/inner"));
    TemporaryFolders::make(name());
    EXPECT_FALSE(QFileInfo::exists(left));
    EXPECT_TRUE(QFileInfo::exists(elsewhere.filePath("file")));
}

TEST_F(TemporaryFoldersTest, AreNotMadeWhereALinkOfSomebodyLeads) {
    const QTemporaryDir trap;
    ASSERT_TRUE(QFile::link(trap.path(), parent()));
    const QString path = TemporaryFolders::make(name());
    EXPECT_TRUE(path.startsWith(parent() + ".temp.")) << path.toStdString();
    EXPECT_TRUE(QFileInfo(path).isDir());
    EXPECT_TRUE(QDir(trap.path()).isEmpty());
}

TEST_F(TemporaryFoldersTest, AreOutOfReachOfTheUserWhoMadeTheFolderAroundThem) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    ASSERT_TRUE(QDir().mkdir(parent()));
    ::chmod(parent().toUtf8().constData(), 0777);
    ASSERT_EQ(::chown(parent().toUtf8().constData(), 65534, 65534), 0);
    EXPECT_TRUE(leftByAKilledRun(12345).startsWith(parent() + ".temp."));
    // Root takes the folder over, for everybody from then on.
    EXPECT_TRUE(leftByAKilledRun(0).startsWith(parent() + "/temp."));
    EXPECT_TRUE(leftByAKilledRun(12345).startsWith(parent() + "/temp."));
}

// A process of another container seems to be dead.
TEST(LockedFolder, IsNotRemovedByWhoClearsAwayBeforeItIsLocked) {
    const QTemporaryDir parent;
    const FileDescriptor open(::open(parent.path().toUtf8().constData(), O_RDONLY));
    std::atomic<bool> isDone = false;
    std::thread cleaner([&] {
        while (!isDone) {
            for (const QString& name : QDir(parent.path()).entryList(QDir::AllDirs)) {
                const auto held = LockedFolder::take(open.number(), name.toUtf8());
                if (held.isOpen() && name.size() == 6)
                    ::unlinkat(open.number(), name.toUtf8().constData(), AT_REMOVEDIR);
            }
        }
    });
    for (int i = 0; i < 300; ++i) {
        const QString path = LockedFolder::make(parent.filePath("XXXXXX"));
        EXPECT_FALSE(LockedFolder::take(open.number(), path.right(6).toUtf8()).isOpen());
        EXPECT_TRUE(QFileInfo::exists(path));
        LockedFolder::remove(path);
    }
    isDone = true;
    cleaner.join();
}

} // namespace
