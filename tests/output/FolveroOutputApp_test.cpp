#include "output/FolveroOutputApp.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"
#include "support/RecordedLog.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

const QString shell = text("AppFiles/TmplData/mac.app/Contents/");

class AppTest : public testing::Test {
protected:
    AppTest() {
        book.library.addFile(shell + text("Info.plist"), "<plist/>");
        book.library.addFile(shell + text("MacOS/show"), "#!/bin/sh\n");
        const QString program = book.library.path() + u'/' + shell + text("MacOS/show");
        ::chmod(QFile::encodeName(program).constData(), 0755);
        book.addPage(text("1.jpg"), 1, "first");
    }

    std::unique_ptr<FolveroOutputApp> publisher(const char* name = "Book.html") const {
        auto output = std::make_unique<FolveroOutputApp>(book.pageSource, book.flashTemplate,
                                                         book.folder(), text(name));
        output->setHTMLConfig(book.HTMLConfig);
        return output;
    }

    QStringList folderEntries() const {
        return QDir(book.folder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    PublishedBook book;
};

} // namespace

TEST_F(AppTest, ABundleHoldsTheShellAndTheBook) {
    const auto output = publisher();
    output->ouputTheBook();
    EXPECT_EQ(output->publishErrors(), QStringList());
    EXPECT_EQ(output->outputFileName(), book.folder() + text("/Book.app"));
    EXPECT_EQ(output->outputHTMLFileName(),
              book.folder() + text("/Book.app/Contents/Resources/index.html"));
    EXPECT_EQ(output->saveToFileName(), text("Book.app"));
    EXPECT_EQ(book.read(text("Book.app/Contents/Info.plist")), "<plist/>");
    EXPECT_TRUE(QFileInfo(book.folder() + text("/Book.app/Contents/MacOS/show")).isExecutable());
    EXPECT_EQ(book.read(text("Book.app/Contents/Resources/files/page/1.jpg")), "first");
    EXPECT_EQ(book.read(text("Book.app/Contents/Resources/book.swf")), "book.swf");
    EXPECT_EQ(book.read(text("Book.app/Contents/Resources/index.html")),
              "<title>PDF to Folvero</title>");
    const auto xml =
        BookReader::decipher(book.read(text("Book.app/Contents/Resources/files/UserConfig.bin")));
    EXPECT_THAT(xml.toStdString(), testing::HasSubstr("<IsExe>No</IsExe>"));
    EXPECT_EQ(folderEntries(), QStringList{text("Book.app")});
}

TEST_F(AppTest, TheNameLosesItsExtension) {
    const std::pair<const char*, const char*> names[] = {
        {"Book.html", "Book.app"}, {"Book", "Book.app"}, {"Vol. 2.html", "Vol. 2.app"}};
    for (const auto& [name, bundle] : names)
        EXPECT_EQ(publisher(name)->outputFileName(), book.folder() + u'/' + text(bundle));
}

TEST_F(AppTest, MakesTheFolderThatTheBundleLiesIn) {
    FolveroOutputApp output(book.pageSource, book.flashTemplate, book.folder() + text("/a/b"),
                            text("Book"));
    output.ouputTheBook();
    EXPECT_TRUE(book.exists(text("a/b/Book.app/Contents/Resources/index.html")));
}

TEST_F(AppTest, NothingOfAnEarlierBundleRemains) {
    book.write(text("Book.app/Contents/Resources/files/page/7.jpg"), "old");
    book.write(text("Book.app/left.txt"), "old");
    publisher()->ouputTheBook();
    EXPECT_FALSE(book.exists(text("Book.app/left.txt")));
    EXPECT_FALSE(book.exists(text("Book.app/Contents/Resources/files/page/7.jpg")));
    EXPECT_TRUE(book.exists(text("Book.app/Contents/Resources/files/page/1.jpg")));
    EXPECT_EQ(folderEntries(), QStringList{text("Book.app")});
}

TEST_F(AppTest, AMissingShellIsLoggedAndTheBookIsMadeAllTheSame) {
    QDir(book.library.path() + text("/AppFiles/TmplData")).removeRecursively();
    const RecordedLog log(Log::Level::error);
    publisher()->ouputTheBook();
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_THAT(log.texts().first().toStdString(),
                testing::StartsWith("ouput the book,copy failed:"));
    EXPECT_TRUE(book.exists(text("Book.app/Contents/Resources/files/page/1.jpg")));
}

TEST_F(AppTest, AnEarlierBundleSurvivesARunThatFailsOrIsCancelled) {
    publisher()->ouputTheBook();
    const auto before = BookReader::filesBeneath(book.folder());
    book.addPage(text("2.jpg"), 2, QByteArray(100000, 'x'));

    const auto failing = publisher();
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{50000, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    failing->ouputTheBook();
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    ASSERT_EQ(failing->publishErrors().size(), 1);
    EXPECT_THAT(failing->publishErrors().first().toStdString(),
                testing::StartsWith(
                    (book.folder() + text("/Book.app/Contents/Resources/files/page/2.jpg: "))
                        .toStdString()));
    EXPECT_EQ(BookReader::filesBeneath(book.folder()), before);

    const auto cancelled = publisher();
    cancelled->setCancelled([] { return true; });
    cancelled->ouputTheBook();
    EXPECT_TRUE(cancelled->wasCancelled());
    EXPECT_EQ(BookReader::filesBeneath(book.folder()), before);
}

TEST_F(AppTest, AFolderThatCannotBeMadeIsReported) {
    book.write(text("file"), "x");
    FolveroOutputApp output(book.pageSource, book.flashTemplate, book.folder() + text("/file/in"),
                            text("Book"));
    output.ouputTheBook();
    EXPECT_EQ(output.publishErrors().size(), 1);
    EXPECT_EQ(book.read(text("file")), "x");
}
