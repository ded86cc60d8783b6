#include "app/TemporaryFolders.h"

#include "app/MirelUtility.h"
#include "support/TemplateLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int aWeek = 7 * 24 * 3600;

// A name of the test's own in the machine's temporary folder.
class TemporaryFoldersTest : public testing::Test {
protected:
    TemporaryFoldersTest() { clear(); }
    ~TemporaryFoldersTest() override { clear(); }

    // The same in processes that come from this one.
    const QString& name() const { return iName; }
    QString parent() const { return QStringLiteral("/tmp/") + name(); }
    QString beneath(const char* entry) const {
        return parent() + QStringLiteral("/") + QString::fromLatin1(entry);
    }

    // What a run leaves that is killed while it works: the folder with a page in it.
    QString leftByAKilledRun() const {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            const QByteArray path = TemporaryFolders::make(name()).toUtf8();
            ::write(ends[1], path.constData(), size_t(path.size()));
            ::pause();
        }
        char path[200];
        const ssize_t size = ::read(ends[0], path, sizeof path);
        TestFiles::write(QString::fromUtf8(path, size) + QStringLiteral("/1.jpg"), "page");
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ::close(ends[1]);
        return QString::fromUtf8(path, size);
    }

    // A folder as versions made them that held no lock.
    QString unlocked(const char* entry, int age, mode_t mode = 0700) const {
        const QString path = beneath(entry);
        TestFiles::write(path + QStringLiteral("/1.jpg"), "page");
        ::chmod(path.toUtf8().constData(), mode);
        const timespec then{::time(nullptr) - age, 0};
        const timespec times[]{then, then};
        EXPECT_EQ(::utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0), 0);
        return path;
    }

    void clear() const {
        if (QFileInfo(parent()).isSymLink())
            QFile::remove(parent());
        QDir(parent()).removeRecursively();
        for (const QString& entry :
             QDir(QStringLiteral("/tmp")).entryList({name() + QStringLiteral(".*")}, QDir::Dirs))
            QDir(QStringLiteral("/tmp/") + entry).removeRecursively();
    }

private:
    const QString iName = QStringLiteral("folvero-test-%1").arg(QCoreApplication::applicationPid());
};

TEST_F(TemporaryFoldersTest, AreForTheirUserOnlyAndEmpty) {
    const QString path = TemporaryFolders::make(name());
    struct stat info {};
    ASSERT_EQ(::stat(path.toUtf8().constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700U);
    EXPECT_TRUE(
        QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    TemporaryFolders::remove(path);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(TemporaryFoldersTest, OfKilledRunsGoAtTheNextStart) {
    const QString left = leftByAKilledRun();
    ASSERT_TRUE(QFileInfo::exists(left + QStringLiteral("/1.jpg")));
    MirelUtility::forceTmpDiractory(name());
    EXPECT_FALSE(QFileInfo::exists(left));
}

TEST_F(TemporaryFoldersTest, OfLivingProcessesStay) {
    const QString mine = TemporaryFolders::make(name());
    const pid_t child = ::fork();
    if (child == 0) {
        TemporaryFolders::make(name());
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
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
            TestFiles::write(path + QStringLiteral("/1.jpg"), "page");
            ::sched_yield();
            wasWhole = QFileInfo::exists(path + QStringLiteral("/1.jpg")) && wasWhole;
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

TEST_F(TemporaryFoldersTest, WithoutALockGoOnlyAfterAWeek) {
    const QString young = unlocked("temp.aaaaaa", aWeek - 60);
    const QString old = unlocked("temp.bbbbbb", aWeek + 60);
    TemporaryFolders::make(name());
    EXPECT_TRUE(QFileInfo::exists(young));
    EXPECT_FALSE(QFileInfo::exists(old));
}

TEST_F(TemporaryFoldersTest, StayUnlessAllSpeaksForOneOfOurs) {
    const QStringList kept{unlocked("temp.cccccc", 2 * aWeek, 0755),
                           unlocked("temp.ddddddd", 2 * aWeek), unlocked("temp.dd-ddd", 2 * aWeek),
                           unlocked("other.aaaaaa", 2 * aWeek)};
    const int held = ::open(unlocked("temp.eeeeee", 2 * aWeek).toUtf8().constData(),
                            O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_SH), 0);
    TemporaryFolders::make(name());
    for (const QString& path : kept)
        EXPECT_TRUE(QFileInfo::exists(path)) << path.toStdString();
    EXPECT_TRUE(QFileInfo::exists(beneath("temp.eeeeee/1.jpg")));
    ::close(held);
}

TEST_F(TemporaryFoldersTest, OfOtherUsersStay) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    const QString theirs = unlocked("temp.ffffff", 2 * aWeek, 01700);
    ASSERT_EQ(::chown(theirs.toUtf8().constData(), 65534, 65534), 0);
    TemporaryFolders::make(name());
    EXPECT_TRUE(QFileInfo::exists(theirs));
}

TEST_F(TemporaryFoldersTest, LeadNobodyToFilesElsewhere) {
    const QTemporaryDir elsewhere;
    ::chmod(elsewhere.path().toUtf8().constData(), 01700);
    TestFiles::write(elsewhere.filePath(QStringLiteral("file")), "kept");
    const QString left = leftByAKilledRun();
    ASSERT_TRUE(QFile::link(elsewhere.path(), beneath("temp.gggggg")));
    ASSERT_TRUE(QFile::link(elsewhere.path(), left + QStringLiteral("/inner")));
    TemporaryFolders::make(name());
    EXPECT_FALSE(QFileInfo::exists(left));
    EXPECT_TRUE(QFileInfo::exists(elsewhere.filePath(QStringLiteral("file"))));
}

TEST_F(TemporaryFoldersTest, AreNotMadeWhereALinkOfSomebodyLeads) {
    const QTemporaryDir trap;
    ASSERT_TRUE(QFile::link(trap.path(), parent()));
    const QString path = TemporaryFolders::make(name());
    EXPECT_TRUE(path.startsWith(parent() + QStringLiteral(".temp."))) << path.toStdString();
    EXPECT_TRUE(QFileInfo(path).isDir());
    EXPECT_TRUE(QDir(trap.path()).isEmpty());
}

TEST_F(TemporaryFoldersTest, AreOutOfReachOfTheUserWhoMadeTheFolderAroundThem) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    ASSERT_TRUE(QDir().mkdir(parent()));
    ::chmod(parent().toUtf8().constData(), 0777);
    ASSERT_EQ(::chown(parent().toUtf8().constData(), 65534, 65534), 0);
    const auto placeMadeBy = [this](uid_t user) {
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            if (::setuid(user) == 0) {
                const QByteArray path = TemporaryFolders::make(name()).toUtf8();
                ::write(ends[1], path.constData(), size_t(path.size()));
            }
            ::_exit(0);
        }
        ::close(ends[1]);
        char path[200];
        const ssize_t size = ::read(ends[0], path, sizeof path);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        return QString::fromUtf8(path, size);
    };
    EXPECT_TRUE(placeMadeBy(12345).startsWith(parent() + QStringLiteral(".temp.")));
    // Root takes the folder over, for everybody from then on.
    EXPECT_TRUE(placeMadeBy(0).startsWith(parent() + QStringLiteral("/temp.")));
    EXPECT_TRUE(placeMadeBy(12345).startsWith(parent() + QStringLiteral("/temp.")));
}

} // namespace
