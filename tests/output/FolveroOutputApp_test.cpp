#include "output/FolveroOutputApp.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"
#include "support/RecordedLog.h"

#include <QDir>
#include <QFileInfo>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

const QString shell = "AppFiles/TmplData/mac.app/Contents/";

class AppTest : public testing::Test {
protected:
    AppTest() {
        book.library.addFile(shell + "Info.plist", "<plist/>");
        book.library.addFile(shell + "MacOS/show", "#!/bin/sh\n");
        const QString program = book.library.path() + '/' + shell + "MacOS/show";
        ::chmod(QFile::encodeName(program).constData(), 0755);
        book.addPage("1.jpg", 1, "first");
    }

    std::unique_ptr<FolveroOutputApp> publisher(const QString& name = "Book.html",
                                                const QString& subfolder = "") const {
        auto output = std::make_unique<FolveroOutputApp>(book.pageSource, book.flashTemplate,
                                                         book.folder() + subfolder, name);
        output->setHTMLConfig(book.HTMLConfig);
        return output;
    }

    const QString wholeBundle =
        "Book.app/Contents/Info.plist Book.app/Contents/MacOS/show "
        "Book.app/Contents/Resources/book.swf Book.app/Contents/Resources/files/UserConfig.bin "
        "Book.app/Contents/Resources/files/UserConfig.js "
        "Book.app/Contents/Resources/files/extfiles/moveSound.mp3 "
        "Book.app/Contents/Resources/files/page/1.jpg Book.app/Contents/Resources/index.html";
    PublishedBook book;
};

} // namespace

TEST_F(AppTest, ABundleHoldsTheShellAndTheBook) {
    const auto output = publisher();
    output->ouputTheBook();
    EXPECT_EQ(output->publishErrors(), QStringList());
    EXPECT_EQ(output->outputFileName(), book.folder() + "/Book.app");
    EXPECT_EQ(output->outputHTMLFileName(),
              book.folder() + "/Book.app/Contents/Resources/index.html");
    EXPECT_EQ(output->saveToFileName(), "Book.app");
    EXPECT_EQ(book.files(), wholeBundle);
    EXPECT_TRUE(QFileInfo(book.folder() + "/Book.app/Contents/MacOS/show").isExecutable());
    EXPECT_EQ(book.read("Book.app/Contents/Resources/index.html"), "<title>PDF to Folvero</title>");
    const auto configuration =
        BookReader::configuration(book.folder() + "/Book.app/Contents/Resources");
    EXPECT_EQ(configuration.textAt("Properties/IsExe"), "No");
}

TEST_F(AppTest, TheNameLosesItsExtension) {
    EXPECT_EQ(publisher("Book")->outputFileName(), book.folder() + "/Book.app");
    EXPECT_EQ(publisher("Vol. 2.html")->outputFileName(), book.folder() + "/Vol. 2.app");
}

TEST_F(AppTest, NothingOfAnEarlierBundleRemains) {
    book.write("Book.app/Contents/Resources/files/page/7.jpg", "old");
    book.write("Book.app/left.txt", "old");
    publisher()->ouputTheBook();
    EXPECT_EQ(book.files(), wholeBundle);
    EXPECT_EQ(QDir(book.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"Book.app"});
}

TEST_F(AppTest, AMissingShellIsLoggedAndTheBookIsMadeAllTheSame) {
    QDir(book.library.path() + "/AppFiles/TmplData").removeRecursively();
    const RecordedLog log(Log::Level::error);
    publisher()->ouputTheBook();
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_THAT(log.texts()[0].toStdString(), testing::StartsWith("ouput the book,copy failed:"));
    EXPECT_TRUE(book.exists("Book.app/Contents/Resources/files/page/1.jpg"));
}

TEST_F(AppTest, AnEarlierBundleSurvivesARunThatFailsOrIsCancelled) {
    publisher()->ouputTheBook();
    const auto before = BookReader::contentsBeneath(book.folder());
    book.library.addFile(shell + "Resources/files/page/2.jpg/in the way", "x");
    book.addPage("2.jpg", 2, "second");
    const auto failing = publisher();
    failing->ouputTheBook();
    EXPECT_EQ(failing->publishErrors(),
              QStringList{
                  book.folder() +
                  "/Book.app/Contents/Resources/files/page/2.jpg: There is a folder of that name"});
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before);

    const auto cancelled = publisher();
    cancelled->setCancelled([] { return true; });
    cancelled->ouputTheBook();
    EXPECT_TRUE(cancelled->wasCancelled());
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before);

    const QByteArray pipe = QFile::encodeName(book.library.path() + '/' + shell + "pipe");
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0); // which can't be copied
    failing->ouputTheBook();
    ASSERT_EQ(failing->publishErrors().size(), 1);
    EXPECT_TRUE(failing->publishErrors()[0].startsWith(book.folder() + "/Book.app: "));
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), before);
}
