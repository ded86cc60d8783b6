#include "pages/ImportPDFOperation.h"
#include "pages/PageWorkers.h"

#include "builder/PDFBuilder.h"
#include "platform/NotificationCenter.h"
#include "platform/PlatformException.h"
#include "support/ChildProcesses.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <linux/landlock.h>
#include <numeric>
#include <random>
#include <set>
#include <string_view>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace std::string_view_literals;

namespace {

bool systemClosesFilesOff() {
    return ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) >= 1;
}

// Has a stand-in for the page worker "draw" pages, some of which make it misbehave.
class MisbehavingWorkers : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QDir(iFolder.path()).mkpath(workFolder())); }

    QString workFolder() const { return iFolder.filePath(QStringLiteral("work")); }

    // One line a page: "PAGE DEED".
    void start(int pages, const QByteArray& deeds) {
        const QString file = iFolder.filePath(QStringLiteral("deeds"));
        TestFiles::write(file, deeds);
        std::vector<int> numbers(static_cast<std::size_t>(pages));
        std::iota(numbers.begin(), numbers.end(), 1);
        iWorkers = std::make_unique<PageWorkers>(file, workFolder(), 100, numbers, iStop);
        iWorkers->setProgram(QStringLiteral(FOLVERO_STAND_IN_WORKER));
        iWorkers->setTimeout(1s);
        ASSERT_TRUE(iWorkers->start());
    }

    // Page number -> why it could not be drawn; no text for those that were.
    std::map<int, QString> results(int pages) {
        std::map<int, QString> reasons;
        for (int page = 1; page <= pages; ++page) {
            const auto result = iWorkers->waitFor(page);
            EXPECT_TRUE(result) << page;
            if (result)
                reasons[page] = result->error.english();
        }
        return reasons;
    }

    QTemporaryDir iFolder;
    std::atomic<bool> iStop{false};
    std::unique_ptr<PageWorkers> iWorkers;
};

std::set<int> failed(const std::map<int, QString>& reasons) {
    std::set<int> pages;
    for (const auto& [page, reason] : reasons) {
        if (!reason.isNull())
            pages.insert(page);
    }
    return pages;
}

} // namespace

TEST_F(MisbehavingWorkers, CostNothingButTheirPages) {
    start(30, "3 crash\n4 crash\n9 loop\n14 recurse\n20 babble\n21 crash\n24 trickle\n29 exit\n");
    const auto reasons = results(30);
    EXPECT_EQ(failed(reasons), (std::set{3, 4, 9, 14, 20, 21, 24, 29}));
    EXPECT_EQ(reasons.at(3), QStringLiteral("the program that draws pages ended at this page"));
    EXPECT_EQ(reasons.at(9), QStringLiteral("drawing it took too long"));
    // No page file is left of a page that counts as given up.
    EXPECT_EQ(QDir(workFolder()).entryList(QDir::Files).size(), 30 - 8);
}

// Nobody else may read a document that makes its workers end, however they end.
TEST_F(MisbehavingWorkers, AreBelievedNothingOnceTheDocumentIsOpened) {
    for (const QByteArray deed : {"exit", "crash", "loop"}) {
        start(2, "opening " + deed + "\n");
        EXPECT_EQ(failed(results(2)), (std::set{1, 2})) << deed.constData();
    }
}

TEST_F(MisbehavingWorkers, CannotTakeAllMemory) {
#ifdef FOLVERO_SANITIZED
    GTEST_SKIP() << "sanitizers need memory without a limit";
#endif
    start(6, "2 allocate\n5 allocate\n");
    EXPECT_EQ(failed(results(6)), (std::set{2, 5}));
}

TEST_F(MisbehavingWorkers, ReachNoOtherProcessAndNoNetwork) {
    start(7, "1 connect\n2 fork\n3 execute\n4 map-code\n5 kill-parent\n6 trace-parent\n");
    EXPECT_EQ(failed(results(7)), (std::set{1, 2, 3, 4, 5, 6}));
}

TEST_F(MisbehavingWorkers, ReachNoFileOutsideTheWorkFolder) {
    if (!systemClosesFilesOff())
        GTEST_SKIP() << "this system can't close files off";
    start(4, "1 read-outside\n2 write-outside\n3 link-outside\n");
    EXPECT_EQ(failed(results(4)), (std::set{1, 2, 3}));
    EXPECT_FALSE(QFile::exists(iFolder.filePath(QStringLiteral("outside"))));
}

namespace {

// A document of pages that take a moment each, and an outline and links to read after them.
class KilledWorkers : public testing::Test {
protected:
    static constexpr int pageCount = 150;

    void SetUp() override {
        PDFBuilder builder;
        for (int number = 1; number <= pageCount; ++number) {
            PDFBuilder::Page page;
            page.mediaBox = QRectF(0, 0, 600, 800);
            for (int i = 0; i < 30; ++i) {
                page.content += QByteArray::number(i % 10 / 10.0) + " 0 0 rg " +
                                QByteArray::number(i) + " 0 300 700 re f\n";
            }
            builder.addPage(page);
        }
        ASSERT_TRUE(builder.write(path()));
    }

    QString path() const { return iFolder.filePath(QStringLiteral("book.pdf")); }

    QTemporaryDir iFolder;
};

bool isWholePage(const QString& file) {
    return QImage(file).size() == QSize(1200, 1600);
}

// Whether that process or thread, by its folder, may call no more than the walls let through.
bool isConfined(const QString& folder) {
    return TestFiles::read(folder + QStringLiteral("status")).contains("Seccomp:\t2\n");
}

} // namespace

TEST_F(KilledWorkers, CostTheirPagesWhichAreToldByNumber) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    auto operation = std::make_shared<ImportPDFOperation>(path(), QStringLiteral("ALL"), 144, 100);
    std::atomic<int> progress{0};
    const auto subscription = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr,
        [&](const Notification& /*message*/) { ++progress; });
    OperationQueue queue;
    queue.addOperation(operation);
    std::size_t kills = 0;
    for (int seen = 0;
         kills < 25 && !queue.waitFor(std::uniform_int_distribution(1, 60)(random));) {
        const auto workers = ChildProcesses::running("draw", ::getpid());
        // Workers that are killed while they start, time and again, would be given up.
        if (workers.empty() || progress == seen)
            continue;
        seen = progress;
        ::kill(workers[random() % workers.size()], SIGKILL);
        ++kills;
    }
    queue.waitUntilAllOperationsAreFinished();

    const auto source = std::dynamic_pointer_cast<FlashPageSourcePDF>(operation->flashPageSource());
    ASSERT_TRUE(source);
    std::set<int> told;
    for (const auto& page : source->toPageConverter()->failedPages()) {
        told.insert(page.page);
        EXPECT_FALSE(page.reason.isNull());
    }
    EXPECT_GT(kills, 3U);
    EXPECT_LE(told.size(), kills);
    ASSERT_EQ(source->normalPages().size(), std::size_t{pageCount});
    for (const auto& page : source->normalPages()) {
        if (told.contains(page->pageIndex()))
            EXPECT_FALSE(QFile::exists(page->pageFilePath())) << page->pageIndex();
        else
            EXPECT_TRUE(isWholePage(page->pageFilePath())) << page->pageIndex();
    }
}

TEST_F(KilledWorkers, AreMissedByNobodyWhenTheyOnlyRead) {
    const auto document = PDFDocument::openSandboxed(path());
    ASSERT_EQ(document->pageCount(), pageCount);
    for (const pid_t reader : ChildProcesses::running("read", ::getpid()))
        ::kill(reader, SIGKILL);
    EXPECT_EQ(document->page(7).cropBox(), QRectF(0, 0, 600, 800));
    document->stopReader();
    EXPECT_TRUE(ChildProcesses::running("read", ::getpid()).empty());
    EXPECT_EQ(document->page(8).rotation(), 0);
}

// Walls hold what is in the thread that raises them, and libraries start threads of their own.
TEST_F(KilledWorkers, AreSandboxedWithAllTheirThreads) {
    const auto document = PDFDocument::openSandboxed(path());
    std::atomic<bool> stop{false};
    PageWorkers workers(path(), iFolder.path(), 100, {1, 2, 3, 4}, stop);
    ASSERT_TRUE(workers.start());
    ASSERT_TRUE(workers.waitFor(2));
    for (const char* service : {"read", "draw"}) {
        const auto processes = ChildProcesses::running(service, ::getpid());
        ASSERT_FALSE(processes.empty()) << service;
        const QString process = QStringLiteral("/proc/%1/").arg(processes.front());
        // A worker may still be starting while another one draws.
        const auto patience = std::chrono::steady_clock::now() + 10s;
        while (!isConfined(process) && std::chrono::steady_clock::now() < patience)
            std::this_thread::sleep_for(1ms);
        const QDir threads(process + QStringLiteral("task"));
        const QStringList numbers = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
#ifndef FOLVERO_SANITIZED
        // Files are closed off from the thread that raises the walls and those that it starts then,
        // as drawing does; both services raise them in the same way.
        if (service == "read"sv) {
            EXPECT_EQ(numbers.size(), 1);
        }
#endif
        for (const QString& thread : numbers) {
            const QString folder = threads.filePath(thread) + u'/';
            // A thread may have ended since the list was made.
            EXPECT_TRUE(isConfined(folder) || !QFile::exists(folder)) << service;
        }
    }
}
