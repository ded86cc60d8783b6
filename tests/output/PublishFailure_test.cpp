#include "output/FolveroOutput.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"
#include "support/RecordedLog.h"
#include "system/FileDescriptor.h"

#include <QFile>
#include <csignal>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/fsuid.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

// A published book of one page whose sources have all changed since.
class ChangedBook : public testing::Test {
protected:
    ChangedBook() {
        book.addPage("1.jpg", 1, "old");
        book.publish();
        before = BookReader::contentsBeneath(book.folder());
        book.addSource("1.jpg", "new");
        book.addPage("2.jpg", 2, QByteArray(100000, 'x'));
        book.HTMLConfig->setHTMLTitle("New");
        output = book.publisher();
    }

    // As long as files longer than that can't be written.
    void publishWithLimit(rlim_t bytes) const {
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual{};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit limit{bytes, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        output->ouputTheBook();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
    }

    // Without what root may do to the files of others; to be called by root.
    void publishAsOrdinaryUser() const {
        setMode(book.folder() + "/..", 0755);
        setMode(book.library.path(), 0755);
        ::setfsuid(65534);
        output->ouputTheBook();
        ::setfsuid(::geteuid());
    }

    static void setMode(const QString& path, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    void expectUntouched() const { EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before); }

    PublishedBook book;
    std::map<QString, QByteArray> before;
    std::unique_ptr<FolveroOutput> output;
};

TEST_F(ChangedBook, GetsItsContentsFirstThenItsPage) {
    const FileDescriptor watch(::inotify_init1(IN_NONBLOCK));
    const QByteArray folder = QFile::encodeName(book.folder());
    ASSERT_GE(::inotify_add_watch(watch.number(), folder.constData(), IN_MOVED_TO), 0);
    output->ouputTheBook();
    alignas(inotify_event) char events[4096];
    const auto size = std::size_t(::read(watch.number(), events, sizeof events));
    ASSERT_LE(size, sizeof events);
    QStringList names;
    for (std::size_t at = 0; at < size;) {
        const auto* event = reinterpret_cast<const inotify_event*>(events + at);
        names << QFile::decodeName(event->name);
        at += sizeof *event + event->len;
    }
    EXPECT_EQ(names.join(' '), "files index.html");
}

TEST_F(ChangedBook, StaysWholeWhenAPageCannotBeWritten) {
    publishWithLimit(50000);
    EXPECT_EQ(output->publishErrors(),
              QStringList{book.folder() + "/files/page/2.jpg: File too large"});
    expectUntouched();

    output->ouputTheBook();
    EXPECT_TRUE(output->publishErrors().isEmpty());
    EXPECT_EQ(book.read("files/page/1.jpg"), "new");
}

TEST_F(ChangedBook, StaysWholeWhenTheRunIsCancelled) {
    int filesToGo = 0;
    output->setCancelled([&] { return filesToGo-- == 0; });
    int runs = 0;
    for (; runs < 100; ++runs) {
        filesToGo = runs;
        output->ouputTheBook();
        if (!output->wasCancelled())
            break;
        EXPECT_TRUE(output->publishErrors().isEmpty());
        expectUntouched();
    }
    EXPECT_GT(runs, 5);
    EXPECT_EQ(book.read("files/page/1.jpg"), "new");
}

TEST_F(ChangedBook, StaysWholeAndCanBePublishedAgainAfterAFaultOfOurs) {
    int filesToGo = 3;
    output->setCancelled(
        [&] { return --filesToGo == 0 ? throw std::logic_error("fault") : false; });
    EXPECT_THROW(output->ouputTheBook(), std::logic_error);
    expectUntouched();
    output->ouputTheBook();
    EXPECT_EQ(book.read("files/page/1.jpg"), "new");
}

TEST_F(ChangedBook, IsRolledBackWhenTheLastStepsFail) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    // All is the user's but the page, which nobody else may rename.
    setMode(book.folder(), 01777);
    for (const char* name : {"", "/page", "/extfiles"})
        ASSERT_EQ(::chown(QFile::encodeName(book.folder() + "/files" + name).constData(), 65534, 0),
                  0);
    publishAsOrdinaryUser();
    ASSERT_EQ(output->publishErrors().size(), 1);
    EXPECT_EQ(output->publishErrors()[0], book.folder() + "/index.html: Operation not permitted");
    expectUntouched();
}

TEST(ouputBookXML, LogsToTheSystemWhenItsFolderIsMissing) {
    const PublishedBook book;
    const RecordedLog log;
    const auto output = book.publisher();
    output->ouputBookXML(book.folder() + "/no/such/UserConfig.bin");
    EXPECT_TRUE(log.texts().contains("Could not write document out..."));
    EXPECT_EQ(output->publishErrors().size(), 1);
    EXPECT_FALSE(book.exists("no"));
}

} // namespace
