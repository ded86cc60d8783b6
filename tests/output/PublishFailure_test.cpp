#include "output/FolveroOutput.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"
#include "support/RecordedLog.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>
#include <gmock/gmock.h>
#include <sys/fsuid.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

// Makes files longer than that fail to be written while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        iHandler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &iBefore);
        rlimit limit = iBefore;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &iBefore);
        std::signal(SIGXFSZ, iHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit iBefore{};
    void (*iHandler)(int) = nullptr;
};

// Takes from this thread what root may do to files of others.
class OrdinaryUser {
public:
    OrdinaryUser() { ::setfsuid(65534); }
    ~OrdinaryUser() { ::setfsuid(::geteuid()); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

void setMode(const QString& path, mode_t mode) {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

// A published book of one page whose sources have all changed since.
class ChangedBook : public testing::Test {
protected:
    ChangedBook() {
        book.addPage(text("1.jpg"), 1, "old");
        book.publish();
        before = BookReader::contentsBeneath(book.folder());
        book.addSource(text("1.jpg"), "new");
        book.addPage(text("2.jpg"), 2, QByteArray(100000, 'x'));
        book.HTMLConfig->setHTMLTitle(text("New"));
    }

    void expectUntouched() const { EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before); }

    PublishedBook book;
    std::map<QString, QByteArray> before;
};

TEST_F(ChangedBook, StaysWholeWhenAPageCannotBeWritten) {
    const auto output = book.publisher();
    {
        const FileSizeLimit limit(50000);
        output->ouputTheBook();
    }
    ASSERT_EQ(output->publishErrors().size(), 1);
    EXPECT_TRUE(output->publishErrors().first().startsWith(
        book.folder() + text("/files/page/2.jpg: File too large")));
    expectUntouched();

    output->ouputTheBook();
    EXPECT_TRUE(output->publishErrors().isEmpty());
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "new");
}

TEST_F(ChangedBook, StaysWholeWhenTheConfigurationCannotBeWritten) {
    const auto output = book.publisher();
    book.pageSource->setNormalPages({});
    const RecordedLog log;
    {
        const FileSizeLimit limit(1000);
        output->ouputTheBook();
    }
    EXPECT_TRUE(log.texts().contains(text("Could not write document out...")));
    ASSERT_EQ(output->publishErrors().size(), 1);
    EXPECT_TRUE(output->publishErrors().first().contains(text("UserConfig.bin")));
    expectUntouched();
}

TEST_F(ChangedBook, StaysWholeWhenTheRunIsCancelled) {
    int filesToGo = 0;
    const auto output = book.publisher();
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
    EXPECT_LT(runs, 100);
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "new");
}

TEST_F(ChangedBook, StaysWholeWhenAFolderStandsInTheWay) {
    QDir(book.folder()).mkpath(text("files/page/2.jpg/inside"));
    const auto output = book.publisher();
    output->ouputTheBook();
    EXPECT_EQ(output->publishErrors().size(), 1);
    expectUntouched();
    EXPECT_TRUE(book.exists(text("files/page/2.jpg/inside")));
}

TEST_F(ChangedBook, IsPutBackWhenTheLastStepsFail) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    // All may change but the page's folder of the configuration: pages are in place by then.
    setMode(QFileInfo(book.folder()).path(), 0755);
    setMode(book.folder(), 0777);
    setMode(book.folder() + text("/files/page"), 0777);
    setMode(book.folder() + text("/files/extfiles"), 0777);
    setMode(book.folder() + text("/files"), 0755);
    setMode(book.library.path(), 0755);
    const auto output = book.publisher();
    {
        const OrdinaryUser user;
        output->ouputTheBook();
    }
    ASSERT_EQ(output->publishErrors().size(), 1);
    EXPECT_TRUE(output->publishErrors().first().endsWith(text("Permission denied")));
    EXPECT_TRUE(output->publishErrors().first().contains(text("UserConfig.bin")));
    expectUntouched();
}

TEST_F(ChangedBook, StaysWholeInAFolderThatIsReadOnly) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to be two users";
    setMode(QFileInfo(book.folder()).path(), 0755);
    setMode(book.library.path(), 0755);
    const auto output = book.publisher();
    {
        const OrdinaryUser user;
        output->ouputTheBook();
    }
    EXPECT_EQ(output->publishErrors(), QStringList{book.folder() + text(": Permission denied")});
    expectUntouched();
}

class SmallDisk {
public:
    explicit SmallDisk(const QString& folder) : iPath(QFile::encodeName(folder)) {
        iMounted = ::mount("none", iPath.constData(), "tmpfs", 0, "size=1m") == 0;
    }
    ~SmallDisk() {
        if (iMounted)
            ::umount(iPath.constData());
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    bool isMounted() const { return iMounted; }

private:
    QByteArray iPath;
    bool iMounted = false;
};

TEST(FullDisk, LeavesTheEarlierBookWhole) {
    PublishedBook book;
    const SmallDisk disk(book.folder());
    if (!disk.isMounted())
        GTEST_SKIP() << "mounting is not permitted here";
    book.addPage(text("1.jpg"), 1, QByteArray(300000, 'a'));
    book.publish();
    const auto before = BookReader::contentsBeneath(book.folder());
    for (int page = 2; page < 10; ++page)
        book.addPage(text("%1.jpg").arg(page), page, QByteArray(300000, 'b'));
    const auto output = book.publisher();
    output->ouputTheBook();
    EXPECT_THAT(output->publishErrors().join(u'\n').toStdString(),
                testing::HasSubstr("No space left on device"));
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before);
}

TEST(ouputBookXML, TellsTheSystemLogWhenItsFolderIsMissing) {
    PublishedBook book;
    const RecordedLog log;
    const auto output = book.publisher();
    const QString path = book.folder() + text("/no/such/UserConfig.bin");
    output->ouputBookXML(path);
    EXPECT_TRUE(log.texts().contains(text("Could not write document out...")));
    EXPECT_EQ(output->publishErrors().size(), 1);
    EXPECT_FALSE(book.exists(text("no")));
}

TEST(ouputBookXML, WritesBothFormsWhereItIsTold) {
    PublishedBook book;
    book.publisher()->ouputBookXML(book.folder() + text("/My.bin"));
    EXPECT_EQ(BookReader::filesBeneath(book.folder()),
              (QStringList{text("My.bin"), text("My.js")}));
}

} // namespace
