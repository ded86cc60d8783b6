#include "support/BookReader.h"
#include "support/ChildProcesses.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <thread>

namespace {

using namespace std::chrono_literals;

class InterruptTest : public testing::Test {
protected:
    QString folder() const { return iRoot.filePath(QStringLiteral("book")); }

    // Starts to publish a thousand pages and returns once that many are drawn.
    void start(QProcess& process, int pages = 60) const {
        process.start(Program::path(), {QStringLiteral("publish"),
                                        Program::sample(QStringLiteral("thousand.pdf")), folder()});
        ASSERT_TRUE(process.waitForStarted());
        for (int i = 0; i < 500 && pagesDrawn(process) < pages; ++i)
            std::this_thread::sleep_for(10ms);
        ASSERT_GE(pagesDrawn(process), pages);
    }

    static std::vector<pid_t> workers(const QProcess& process) {
        return ChildProcesses::running("draw", process.processId());
    }

    static bool isRunning(pid_t process) {
        return !QFileInfo(QStringLiteral("/proc/%1/exe").arg(process)).symLinkTarget().isEmpty();
    }

    // The work folder of a run, which it holds open.
    static QString workFolder(const QProcess& process) {
        const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(process.processId()));
        for (const QFileInfo& entry : descriptors.entryInfoList(QDir::AllEntries | QDir::System)) {
            if (entry.symLinkTarget().startsWith(QStringLiteral("/tmp/Lumivex")))
                return entry.symLinkTarget();
        }
        return {};
    }

    static int pagesDrawn(const QProcess& process) {
        const QString work = workFolder(process);
        return work.isEmpty() ? 0 : int(QDir(work).entryList({QStringLiteral("*.jpg")}).size());
    }

    QByteArray contents() const {
        QByteArray all;
        for (const QString& name : BookReader::filesBeneath(folder()))
            all += name.toUtf8() + '\n' + TestFiles::read(folder() + u'/' + name);
        return all;
    }

    QTemporaryDir iRoot;
};

} // namespace

TEST_F(InterruptTest, LeavesNothingBehindWhenItIsToldToStop) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        QProcess process;
        start(process);
        const QString work = workFolder(process);
        const auto running = workers(process);
        ASSERT_FALSE(work.isEmpty());
        ASSERT_FALSE(running.empty());
        ::kill(pid_t(process.processId()), signal);
        const auto result = Program::finish(process);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_TRUE(result.errors.contains("cancelled")) << result.errors.constData();
        EXPECT_FALSE(QFileInfo::exists(folder()));
        EXPECT_FALSE(QFileInfo::exists(work));
        for (const pid_t worker : running)
            EXPECT_FALSE(isRunning(worker));
    }
}

TEST_F(InterruptTest, LeavesTheEarlierBookAsItWas) {
    ASSERT_EQ(Program::run({QStringLiteral("publish"),
                            Program::sample(QStringLiteral("outline.pdf")), folder()})
                  .exitCode,
              0);
    const QByteArray before = contents();
    QProcess process;
    start(process);
    ::kill(pid_t(process.processId()), SIGINT);
    EXPECT_EQ(Program::finish(process).exitCode, 130);
    EXPECT_TRUE(contents() == before);
}

TEST_F(InterruptTest, TakesItsWorkersAlongWhenItIsKilled) {
    QProcess process;
    start(process);
    const QString work = workFolder(process);
    ASSERT_FALSE(work.isEmpty());
    const auto running = workers(process);
    process.kill();
    EXPECT_EQ(Program::finish(process).exitCode, -1);
    for (const pid_t worker : running) {
        for (int i = 0; i < 200 && isRunning(worker); ++i)
            std::this_thread::sleep_for(10ms);
        EXPECT_FALSE(isRunning(worker));
    }
    // The next run does it for the one that could not.
    EXPECT_TRUE(QFileInfo::exists(work));
    ASSERT_EQ(Program::run({QStringLiteral("publish"),
                            Program::sample(QStringLiteral("outline.pdf")), folder()})
                  .exitCode,
              0);
    EXPECT_FALSE(QFileInfo::exists(work));
}

TEST_F(InterruptTest, LosesNothingWhenWorkersAreKilled) {
    QProcess process;
    start(process);
    const auto running = workers(process);
    ASSERT_FALSE(running.empty());
    for (const pid_t worker : running)
        ::kill(worker, SIGKILL);
    EXPECT_EQ(Program::finish(process).exitCode, 0);
    EXPECT_EQ(QDir(folder() + QStringLiteral("/files/page")).entryList(QDir::Files).size(), 1000);
}

TEST_F(InterruptTest, MakesOneBookAtATimeInAFolder) {
    QProcess first;
    start(first);
    const auto second = Program::run(
        {QStringLiteral("publish"), Program::sample(QStringLiteral("outline.pdf")), folder()});
    EXPECT_EQ(second.exitCode, 75);
    EXPECT_TRUE(second.errors.contains("another folvero")) << second.errors.constData();
    ::kill(pid_t(first.processId()), SIGINT);
    EXPECT_EQ(Program::finish(first).exitCode, 130);
}

TEST_F(InterruptTest, GoesOnWhenNobodyReadsItsProgress) {
    const auto result = Program::runOther(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("\"$0\" publish \"$1\" \"$2\" 2>&1 >&- | true"),
         Program::path(), Program::sample(QStringLiteral("outline.pdf")), folder()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(QFileInfo::exists(folder() + QStringLiteral("/index.html")));
}

TEST_F(InterruptTest, FailsWhenItsFolderIsTakenAwayMeanwhile) {
    QProcess process;
    start(process);
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    const auto result = Program::finish(process);
    EXPECT_EQ(result.exitCode, 75);
    EXPECT_TRUE(result.output.isEmpty());
    EXPECT_TRUE(result.errors.contains(folder().toUtf8() + ": the output folder is gone"));
}
