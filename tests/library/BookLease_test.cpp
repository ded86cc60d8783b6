#include "library/BookLease.h"
#include "library/ProcessIdentity.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <array>
#include <atomic>
#include <barrier>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace std::chrono_literals;

// The file server is the folder's disk, whose clock no test can set: leases are made older instead.
class BookLeaseTest : public testing::Test {
protected:
    std::unique_ptr<BookLease> take() const {
        Message error;
        auto lease = BookLease::take(iFile, &error);
        EXPECT_TRUE(error.isNull()) << error.english().toStdString();
        return lease;
    }

    static void write(const QString& file, const QByteArray& content) {
        QDir().mkpath(QFileInfo(file).path());
        EXPECT_TRUE(Files::writeAtomically(file, content));
    }

    static QByteArray heldBy(const ProcessIdentity& holder, const QString& token) {
        QJsonObject content = holder.asJson();
        content[QStringLiteral("token")] = token;
        return QJsonDocument(content).toJson();
    }

    static ProcessIdentity onOtherMachine() {
        ProcessIdentity other = ProcessIdentity::own();
        other.host = QStringLiteral("other.example");
        return other;
    }

    static ProcessIdentity dead() {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(0);
        ::waitpid(child, nullptr, 0);
        ProcessIdentity ended = ProcessIdentity::own();
        ended.process = child;
        return ended;
    }

    static std::time_t renewedAt(const QString& file) {
        struct stat info {};
        EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &info), 0);
        return info.st_mtim.tv_sec;
    }

    static void makeOlder(const QString& file, std::chrono::seconds by) {
        std::array<timespec, 2> times{};
        times.fill({renewedAt(file) - by.count(), 0});
        EXPECT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), times.data(), 0), 0);
    }

    // Takes it in many threads at once; the leases that were given.
    std::vector<std::unique_ptr<BookLease>> takeInThreads() const {
        constexpr int count = 50;
        std::vector<std::unique_ptr<BookLease>> taken(count);
        std::barrier start(count);
        std::vector<std::thread> threads;
        for (auto& lease : taken)
            threads.emplace_back([&] {
                start.arrive_and_wait();
                lease = take();
            });
        for (auto& thread : threads)
            thread.join();
        std::erase(taken, nullptr);
        return taken;
    }

    QStringList filesLeft() const {
        QStringList names = QDir(QFileInfo(iFile).path()).entryList(QDir::Files);
        names.removeOne(BookLease::clockFile);
        return names;
    }

    QTemporaryDir iFolder;
    QString iFile = iFolder.filePath("leases/b1.json");
};

TEST_F(BookLeaseTest, IsHeldByOneAndGivenBack) {
    auto lease = take();
    ASSERT_TRUE(lease);
    EXPECT_FALSE(take());
    makeOlder(iFile, 60s);
    const auto before = renewedAt(iFile);
    EXPECT_TRUE(lease->renew());
    EXPECT_GE(renewedAt(iFile), before + 60);
    lease.reset();
    EXPECT_EQ(filesLeft(), QStringList());
}

TEST_F(BookLeaseTest, IsTakenOverOnlyFromWhoIsDeadOrLate) {
    ProcessIdentity reused = ProcessIdentity::own();
    reused.started = QStringLiteral("1"); // the number now has another process
    ProcessIdentity elsewhere = dead();
    elsewhere.boot = QStringLiteral("another namespace");
    struct Case {
        const char* name;
        QByteArray content;
        std::chrono::seconds age;
        bool isTaken;
    };
    for (const auto& [name, content, age, isTaken] :
         {Case{"dead on this machine", heldBy(dead(), "1"), 0s, true},
          {"its process number is used again", heldBy(reused, "1"), 0s, true},
          {"another namespace, renewed", heldBy(elsewhere, "1"), 0s, false},
          {"another machine, renewed", heldBy(onOtherMachine(), "1"), BookLease::term - 10s, false},
          {"another machine, late", heldBy(onOtherMachine(), "1"), BookLease::term + 10s, true},
          {"this machine, alive but late", heldBy(ProcessIdentity::own(), "1"),
           BookLease::term + 10s, true},
          {"not written yet", {}, 0s, false},
          {"never written", {}, BookLease::term + 10s, true}}) {
        write(iFile, content);
        makeOlder(iFile, age);
        EXPECT_EQ(take() != nullptr, isTaken) << name;
        EXPECT_EQ(filesLeft().size(), isTaken ? 0 : 1) << name;
    }
}

TEST_F(BookLeaseTest, IsNotRemovedByWhoLostIt) {
    auto lost = take();
    makeOlder(iFile, BookLease::term + 10s);
    const auto taken = take();
    ASSERT_TRUE(taken);
    EXPECT_FALSE(lost->renew());
    lost.reset();
    EXPECT_TRUE(taken->renew());
}

TEST_F(BookLeaseTest, IsTakenByOneOfManyAtOnce) {
    for (int round = 0; round < 20; ++round) {
        EXPECT_EQ(takeInThreads().size(), 1U);
        EXPECT_EQ(filesLeft(), QStringList());
    }
}

TEST_F(BookLeaseTest, IsTakenOverByOneOfManyAtOnce) {
    for (int round = 0; round < 40; ++round) {
        write(iFile, heldBy(onOtherMachine(), QString::number(round)));
        makeOlder(iFile, BookLease::term + 10s);
        EXPECT_EQ(takeInThreads().size(), 1U);
        EXPECT_EQ(filesLeft(), QStringList());
    }
}

// Killed between its claim on the lease and the end of the takeover.
TEST_F(BookLeaseTest, IsTakenOverAfterOneWhoTookItOverWasKilled) {
    write(iFile, heldBy(onOtherMachine(), "1"));
    makeOlder(iFile, BookLease::term + 10s);
    const pid_t killed = ::fork();
    if (killed == 0) {
        // The disk takes the claim, and not one byte of it.
        const rlimit none{0, 0};
        ::signal(SIGXFSZ, SIG_DFL);
        ::setrlimit(RLIMIT_FSIZE, &none);
        Message error;
        BookLease::take(iFile, &error);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(killed, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    const QStringList left = filesLeft();
    ASSERT_EQ(left.size(), 2);
    EXPECT_FALSE(take()) << "it may be alive";
    makeOlder(Files::join(QFileInfo(iFile).path(), left[1]), BookLease::term + 10s);
    EXPECT_EQ(takeInThreads().size(), 1U);
    EXPECT_EQ(filesLeft(), QStringList());
}

TEST_F(BookLeaseTest, IsNotLeftHalfWrittenOnAFullDisk) {
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit none{0, 0};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &none);
        Message error;
        const auto lease = BookLease::take(iFile, &error);
        ::_exit(lease || error.isNull() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(take());
}

} // namespace
