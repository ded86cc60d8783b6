#include "cli/BookTest.h"
#include "support/ChildProcesses.h"

#include <csignal>
#include <thread>

namespace {

class InterruptTest : public BookTest {
protected:
    // Starts to publish a thousand pages and stops the program once some are drawn, until a signal
    // is sent to it.
    void start(QProcess& process) const {
        process.start(Program::path(),
                      {"publish", "--type=html", Program::sample("thousand.pdf"), book()});
        ASSERT_TRUE(process.waitForStarted());
        waitUntil([&] { return pagesDrawn(process) >= 60; });
        ::kill(pid_t(process.processId()), SIGSTOP);
        ASSERT_FALSE(workFolder(process).isEmpty());
        ASSERT_FALSE(workers(process).empty());
    }

    static Program::Result finish(QProcess& process, int signal) {
        ::kill(pid_t(process.processId()), signal);
        ::kill(pid_t(process.processId()), SIGCONT);
        return Program::finish(process);
    }

    static void waitUntil(const std::function<bool()>& condition) {
        for (int i = 0; i < 6000 && !condition(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_TRUE(condition());
    }

    static std::vector<pid_t> workers(const QProcess& process) {
        return ChildProcesses::running("draw", process.processId());
    }

    static bool isRunning(pid_t process) {
        return !QFileInfo(QString("/proc/%1/exe").arg(process)).symLinkTarget().isEmpty();
    }

    // The work folder of a run, which it holds open.
    static QString workFolder(const QProcess& process) {
        const QDir descriptors(QString("/proc/%1/fd").arg(process.processId()));
        for (const QFileInfo& entry : descriptors.entryInfoList(QDir::AllEntries | QDir::System)) {
            if (entry.symLinkTarget().startsWith("/tmp/Lumivex"))
                return entry.symLinkTarget();
        }
        return {};
    }

    static int pagesDrawn(const QProcess& process) {
        const QString work = workFolder(process);
        return work.isEmpty() ? 0 : int(QDir(work).entryList({"*.jpg"}).size());
    }
};

} // namespace

TEST_F(InterruptTest, LeavesNothingBehindButTheEarlierBook) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        const auto before = contents(); // nothing the first time
        QProcess process;
        start(process);
        const QString work = workFolder(process);
        const auto running = workers(process);
        const auto result = finish(process, signal);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_TRUE(result.errors.endsWith("folvero: cancelled; nothing was made\n"))
            << result.errors.constData();
        EXPECT_EQ(exists({}), !before.empty());
        EXPECT_TRUE(contents() == before);
        EXPECT_FALSE(QFileInfo::exists(work));
        for (const pid_t worker : running)
            EXPECT_FALSE(isRunning(worker));
        published("outline.pdf");
    }
}

TEST_F(InterruptTest, TakesItsWorkersAlongWhenItIsKilled) {
    QProcess process;
    start(process);
    const QString work = workFolder(process);
    const auto running = workers(process);
    EXPECT_EQ(finish(process, SIGKILL).exitCode, -1);
    for (const pid_t worker : running)
        waitUntil([worker] { return !isRunning(worker); });
    published("outline.pdf"); // removes what the killed one left, if no other run has
    EXPECT_FALSE(QFileInfo::exists(work));
}

TEST_F(InterruptTest, LosesNothingWhenWorkersAreKilled) {
    QProcess process;
    start(process);
    for (const pid_t worker : workers(process))
        ::kill(worker, SIGKILL);
    const auto result = finish(process, SIGCONT);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors.count("Drawing pages"), 10); // every tenth once
    EXPECT_EQ(QDir(file("files/page")).entryList(QDir::Files).size(), 1000);
}

TEST_F(InterruptTest, MakesOneBookAtATimeInAFolder) {
    QProcess first;
    start(first);
    const auto second = publish("outline.pdf");
    EXPECT_EQ(second.exitCode, 75);
    EXPECT_TRUE(second.errors.contains(": another folvero is making a book in this folder\n"))
        << second.errors.constData();
    EXPECT_EQ(finish(first, SIGINT).exitCode, 130);
}

TEST_F(InterruptTest, GoesOnWhenNobodyReadsItsProgress) {
    const auto result =
        Program::runOther("/bin/sh", {"-c", "\"$0\" publish \"$1\" \"$2\" 2>&1 >&- | true",
                                      Program::path(), Program::sample("outline.pdf"), book()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(exists("index.html"));
}

TEST_F(InterruptTest, FailsWhenItsFolderIsTakenAwayMeanwhile) {
    QProcess process;
    start(process);
    ASSERT_TRUE(QDir(book()).removeRecursively() && QDir().mkpath(book()));
    const auto result = finish(process, SIGCONT);
    EXPECT_EQ(result.exitCode, 75);
    EXPECT_TRUE(result.output.isEmpty());
    EXPECT_TRUE(result.errors.contains(
        book().toUtf8() +
        ": the output folder is gone, or another one has its name; no book was made\n"));
    EXPECT_TRUE(QDir(book()).isEmpty()) << "another folder of that name";
}
