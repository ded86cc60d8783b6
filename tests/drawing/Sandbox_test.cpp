#include "drawing/PageWorkers.h"
#include "pages/ImportPDFOperation.h"

#include "base/NotificationCenter.h"
#include "base/PlatformException.h"
#include "builder/PDFBuilder.h"
#include "pdf/PDFReader.h"
#include "support/ChildProcesses.h"
#include "support/TemplateLibrary.h"
#include "system/Sandbox.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <fcntl.h>
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

// Has a stand-in for the page worker "draw" pages, some of which make it misbehave.
class MisbehavingWorkers : public testing::Test {
protected:
    MisbehavingWorkers() { QDir(iFolder.path()).mkdir("work"); }

    QString workFolder() const { return iFolder.filePath("work"); }

    // Draws the pages, with one line "PAGE DEED" for each that misbehaves: number -> why it could
    // not be drawn.
    std::map<int, QString> failures(int pages, const QByteArray& deeds) {
        const QString file = iFolder.filePath("deeds");
        TestFiles::write(file, deeds);
        std::vector<int> numbers(static_cast<std::size_t>(pages));
        std::iota(numbers.begin(), numbers.end(), 1);
        PageWorkers workers(file, workFolder(), 100, numbers, iStop);
        workers.setProgram(FOLVERO_STAND_IN_WORKER);
        workers.setTimeout(3s);
        EXPECT_TRUE(workers.start());
        std::map<int, QString> reasons;
        for (int page = 1; page <= pages; ++page) {
            const auto result = workers.waitFor(page);
            EXPECT_TRUE(result) << page;
            if (result && !result->error.isNull())
                reasons[page] = result->error.english();
        }
        return reasons;
    }

    std::set<int> failed(int pages, const QByteArray& deeds) {
        std::set<int> numbers;
        for (const auto& [page, reason] : failures(pages, deeds))
            numbers.insert(page);
        return numbers;
    }

    QTemporaryDir iFolder;
    std::atomic<bool> iStop{false};
};

} // namespace

TEST_F(MisbehavingWorkers, CostNothingButTheirPages) {
    const auto reasons = failures(
        30, "3 crash\n4 crash\n9 loop\n14 recurse\n20 babble\n21 crash\n24 trickle\n29 exit\n");
    EXPECT_EQ(reasons.size(), 8U);
    for (const int page : {3, 4, 14, 21, 29})
        EXPECT_EQ(reasons.at(page), "the program that draws pages ended at this page") << page;
    for (const int page : {9, 24})
        EXPECT_EQ(reasons.at(page), "drawing it took too long") << page;
    EXPECT_TRUE(reasons.contains(20));
    // No page file is left of a page that counts as failed.
    EXPECT_EQ(QDir(workFolder()).entryList(QDir::Files).size(), 30 - 8);
}

// A document that crashes its workers must not be read outside the sandbox.
TEST_F(MisbehavingWorkers, AreBelievedNothingOnceTheDocumentIsOpened) {
    for (const QByteArray deed : {"exit", "crash", "loop"})
        EXPECT_EQ(failed(2, "opening " + deed + "\n"), (std::set{1, 2})) << deed.constData();
}

TEST_F(MisbehavingWorkers, CannotTakeAllMemoryNorFillTheDisk) {
#ifdef FOLVERO_SANITIZED
    GTEST_SKIP() << "sanitizers need memory without a limit";
#endif
    EXPECT_EQ(failed(3, "1 allocate\n2 grow\n"), (std::set{1, 2}));
    EXPECT_EQ(failures(1, "1 litter\n").at(1),
              "the program that draws pages wrote more than pages need");
}

TEST_F(MisbehavingWorkers, ReachNoOtherProcessAndNoNetwork) {
    EXPECT_EQ(
        failed(7, "1 connect\n2 fork\n3 execute\n4 map-code\n5 kill-parent\n6 trace-parent\n"),
        (std::set{1, 2, 3, 4, 5, 6}));
}

TEST_F(MisbehavingWorkers, ReachNoFileOutsideTheWorkFolder) {
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) < 1)
        GTEST_SKIP() << "this system has no Landlock";
    EXPECT_EQ(failed(4, "1 read-outside\n2 write-outside\n3 link-outside\n4 overwrite\n"),
              (std::set{1, 2, 3}));
    EXPECT_FALSE(QFile::exists(iFolder.filePath("outside")));
}

TEST(Sandbox, ForbidsWritingButNotReading) {
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) < 1)
        GTEST_SKIP() << "this system has no Landlock";
    const QTemporaryDir folder;
    const QByteArray file = QFile::encodeName(folder.filePath("file"));
    TestFiles::write(folder.filePath("file"), "text");
    const auto attempt = [&file] {
        Sandbox::forbidWriting();
        const bool reads = ::open(file.constData(), O_RDONLY) >= 0;
        const bool writes = ::open(file.constData(), O_WRONLY) >= 0 ||
                            ::open((file + "2").constData(), O_WRONLY | O_CREAT, 0600) >= 0 ||
                            ::rename(file.constData(), (file + "3").constData()) == 0 ||
                            ::unlink(file.constData()) == 0;
        ::_exit(reads && !writes ? 0 : 1);
    };
    EXPECT_EXIT(attempt(), testing::ExitedWithCode(0), "");
}

namespace {

// A document of pages that take a moment each, and an outline and links to read after them.
class KilledWorkers : public testing::Test {
protected:
    static constexpr int pageCount = 150;

    void SetUp() override {
        PDFBuilder builder;
        QByteArray content;
        for (int i = 0; i < 30; ++i)
            content += QByteArray::number(i % 10 / 10.0) + " 0 0 rg " + QByteArray::number(i) +
                       " 0 300 700 re f\n";
        for (int number = 1; number <= pageCount; ++number)
            builder.addPage(PDFBuilder::page({600, 800}, content));
        ASSERT_TRUE(builder.write(path()));
    }

    QString path() const { return iFolder.filePath("book.pdf"); }

    QTemporaryDir iFolder;
};

// Whether the process or thread with that folder in /proc has a seccomp filter.
bool isConfined(const QString& folder) {
    return TestFiles::read(folder + "status").contains("Seccomp:\t2\n");
}

} // namespace

TEST_F(KilledWorkers, CostTheirPagesWhichAreListedByNumber) {
    const auto seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    auto operation = std::make_shared<ImportPDFOperation>(path(), "ALL", 144, 100);
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
        // Workers that are killed while they start, again and again, are not replaced.
        if (workers.empty() || progress == seen)
            continue;
        seen = progress;
        ::kill(workers[random() % workers.size()], SIGKILL);
        ++kills;
    }
    queue.waitFor(-1);

    const auto source = std::dynamic_pointer_cast<FlashPageSourcePDF>(operation->flashPageSource());
    ASSERT_TRUE(source);
    std::set<int> failed;
    for (const auto& page : source->toPageConverter()->failedPages()) {
        failed.insert(page.page);
        EXPECT_FALSE(page.reason.isNull());
    }
    EXPECT_GT(kills, 3U);
    EXPECT_LE(failed.size(), kills);
    ASSERT_EQ(source->normalPages().size(), std::size_t{pageCount});
    for (const auto& page : source->normalPages()) {
        const bool isDrawn = !failed.contains(page->pageIndex());
        EXPECT_EQ(QFile::exists(page->pageFilePath()), isDrawn) << page->pageIndex();
        EXPECT_EQ(QImage(page->pageFilePath()).size() == QSize(1200, 1600), isDrawn);
    }
}

TEST_F(KilledWorkers, AreRestartedWhenTheyOnlyRead) {
    const auto document = PDFReader::open(path());
    ASSERT_EQ(document->pageCount(), pageCount);
    for (const pid_t reader : ChildProcesses::running("read", ::getpid()))
        ::kill(reader, SIGKILL);
    EXPECT_EQ(document->page(7).cropBox, QRectF(0, 0, 600, 800));
    document->stopReader();
    EXPECT_TRUE(ChildProcesses::running("read", ::getpid()).empty());
    EXPECT_EQ(document->page(8).rotation, 0);
}

// Landlock covers the thread that enters the sandbox, and libraries start threads of their own.
TEST_F(KilledWorkers, AreSandboxedWithAllTheirThreads) {
    const auto document = PDFReader::open(path());
    std::atomic<bool> stop{false};
    PageWorkers workers(path(), iFolder.path(), 100, {1, 2, 3, 4}, stop);
    ASSERT_TRUE(workers.start());
    ASSERT_TRUE(workers.waitFor(2));
    for (const char* service : {"read", "draw"}) {
        const auto processes = ChildProcesses::running(service, ::getpid());
        ASSERT_FALSE(processes.empty()) << service;
        const QString process = QString("/proc/%1/").arg(processes.front());
        // A worker may still be starting while another one draws.
        const auto patience = std::chrono::steady_clock::now() + 10s;
        while (!isConfined(process) && std::chrono::steady_clock::now() < patience)
            std::this_thread::sleep_for(1ms);
        const QDir threads(process + "task");
        const QStringList numbers = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
#ifndef FOLVERO_SANITIZED
        // Landlock covers the thread that enters the sandbox and those that it starts later, as
        // drawing does; both services enter it in the same way.
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
