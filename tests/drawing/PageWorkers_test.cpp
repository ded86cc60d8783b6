#include "drawing/PageWorkers.h"

#include "support/TemplateLibrary.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace {

// Runs workers that are shell scripts: they show what happens when a worker is not well. "ready"
// and the answers are those of the real one.
class PageWorkersTest : public testing::Test {
protected:
    std::unique_ptr<PageWorkers> start(int pages, const QByteArray& script) {
        const QString program = iFolder.filePath("worker");
        TestFiles::write(program, "#!/bin/sh\nread order\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        std::vector<int> numbers(static_cast<std::size_t>(pages));
        std::iota(numbers.begin(), numbers.end(), 1);
        auto workers =
            std::make_unique<PageWorkers>("none.pdf", iFolder.path(), 100, numbers, iStop);
        workers->setProgram(program);
        workers->setFilesOf([this](int) { return iFiles; });
        EXPECT_TRUE(workers->start());
        return workers;
    }

    QTemporaryDir iFolder;
    PageFiles iFiles = PageFiles::classic;
    std::atomic<bool> iStop{false};
};

} // namespace

TEST_F(PageWorkersTest, LeavesThePagesToTheCallerWhenNoWorkerGetsReady) {
    const auto workers = start(5, "exit 127\n");
    EXPECT_EQ(workers->waitFor(1), std::nullopt);
    EXPECT_EQ(workers->waitFor(2), std::nullopt);
}

TEST_F(PageWorkersTest, BlamesNoPageWhenEachWorkerEndsBeforeItOpensTheDocument) {
    const auto result = start(5, "kill -ABRT $$\n")->waitFor(1);
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->endsImport && result->error.isTemporary());
}

// Page 30 is there when it is drawn again after its workers were killed, page 31 kills each worker.
TEST_F(PageWorkersTest, LosesOnlyThePageThatEndsAWorker) {
    const std::set lost{7, 8, 20, 31};
    const auto workers =
        start(40, "echo ready\nwhile read page; do\n"
                  "case $page in 7|8|20) exit 1;; 31) kill -9 $$;; esac\n"
                  "[ $page != 30 ] || [ -e $0.2 ] || { [ -e $0.1 ] && :>$0.2; :>$0.1; "
                  "kill -9 $$; }\n"
                  "echo ok 0 0 0\ndone\n");
    for (int page = 1; page <= 40; ++page) {
        const auto result = workers->waitFor(page);
        ASSERT_TRUE(result) << page;
        EXPECT_EQ(result->error.isNull(), !lost.contains(page)) << page;
    }
}

// Its page file is complete when the others are begun.
TEST_F(PageWorkersTest, KeepsThePageFileOfAPageThatEndsAWorkerLater) {
    iFiles = PageFiles::web;
    const auto workers = start(3, "cd \"${0%/*}\"\necho ready\nwhile read page kind; do\n"
                                  "[ $kind = web ] && :>$page.text\n"
                                  "case $page in 1) :>1.jpg; exit 1;; 2) exit 1;; esac\n"
                                  "echo damaged images unknown\n"
                                  "echo ok 0 0 0 too large\ndone\n");
    for (int page = 1; page <= 3; ++page) {
        const auto result = workers->waitFor(page);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->error.isNull(), page == 3) << page;
        EXPECT_EQ(result->made.degraded.english(), page == 3 ? "too large" : QString()) << page;
        EXPECT_EQ(result->made.damage.words(), page == 3 ? "images" : "") << page;
        EXPECT_EQ(QFile::exists(iFolder.filePath(QString("%1.text").arg(page))), page == 3) << page;
    }
    EXPECT_TRUE(QFile::exists(iFolder.filePath("1.jpg")));
}

// The one worker is slow to die with the first page while the others run far ahead.
TEST_F(PageWorkersTest, GoesOnWithAPageHandedBackLongAfterTheOthersRanAhead) {
    const auto workers = start(300, "echo ready\nwhile read page; do\n"
                                    "if [ $page = 1 ]; then sleep 1; exit 1; fi\n"
                                    "echo ok 0 0 0\ndone\n");
    for (int page = 1; page <= 300; ++page) {
        const auto result = workers->waitFor(page);
        ASSERT_TRUE(result) << page;
        EXPECT_EQ(result->error.isNull(), page != 1) << page;
    }
}

TEST_F(PageWorkersTest, EndsAPageUnderWayWhenStopped) {
    const auto workers = start(3, "echo ready\nread page\nexec sleep 100\n");
    iStop = true;
    EXPECT_TRUE(workers->waitFor(1)->error.english().contains("stopped"));
}

TEST_F(PageWorkersTest, SaysWhenThereIsNoWorkerToStart) {
    PageWorkers workers("none.pdf", iFolder.path(), 100, {1}, iStop);
    workers.setProgram(iFolder.filePath("missing"));
    EXPECT_FALSE(workers.start());
}
