#include "output/FolveroOutput.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

QString fileProperty(const QString& key, const QString& value,
                     const QString& children = QString()) {
    return TemplateLibrary::property(key, value, "pt_file", children);
}

TEST(FolveroOutput, WritesAWholeBook) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.flashTemplate->setPropertyValue("mainbgImgUrl", book.addSource("bg.PNG", "background"));
    book.addPage("1.jpg", 1, "page one");
    book.addPage("p12.swf", 12, "page twelve");
    book.annotations->setNeedFiles({book.addSource("clip.v2.mp4", "clip")});
    book.HTMLConfig->setHTMLTitle("My book");
    book.publish();
    const QByteArray configuration = book.read("files/UserConfig.bin");
    const std::map<QString, QByteArray> expected{
        {"book.swf", "book.swf"},
        {"files/UserConfig.bin", configuration},
        {"files/UserConfig.js", book.read("files/UserConfig.js")},
        {"files/extfiles/mainbgImgUrl.PNG", "background"},
        {"files/extfiles/moveSound.mp3", "moveSound.mp3"},
        {"files/page/1.jpg", "page one"},
        {"files/page/12.swf", "page twelve"},
        {"files/pageConfig/clip.v2.mp4", "clip"},
        {"index.html", "<title>My book</title>"}};
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), expected);
    EXPECT_EQ(BookReader::bytesOfScript(book.read("files/UserConfig.js")), configuration);
    const QByteArray xml = BookReader::decipher(configuration);
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\"?>\n<SlidePowerPoint>\n"));
    EXPECT_TRUE(xml.contains("\n        <Search>No</Search>\n"));
    EXPECT_TRUE(xml.endsWith("</SlidePowerPoint>\n"));
}

TEST(FolveroOutput, NamesItsFilesAfterTheFolderAndTheName) {
    PublishedBook book;
    const auto named = book.publisher("book.html");
    EXPECT_EQ(named->outputFileName(), book.folder() + "/book.html");
    EXPECT_EQ(named->outputSWFName(), book.folder() + "/book.swf");
    named->ouputTheBook();
    EXPECT_TRUE(book.exists("book.html"));
    EXPECT_FALSE(book.exists("index.html"));
}

TEST(FolveroOutput, ReplacesPagesAndSettingsFilesButNotFilesOfLinks) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.flashTemplate->setPropertyValue("mainbgImgUrl", book.addSource("bg.png", "first"));
    book.addPage("1.jpg", 1, "first");
    book.annotations->setNeedFiles({book.addSource("clip.mp4", "first"),
                                    book.addSource("other/clip.mp4", "second of a name")});
    book.publish();
    for (const char* name : {"bg.png", "1.jpg", "clip.mp4"})
        book.addSource(name, "second");
    book.publish();
    EXPECT_EQ(book.read("files/page/1.jpg"), "second");
    EXPECT_EQ(book.read("files/extfiles/mainbgImgUrl.png"), "second");
    EXPECT_EQ(book.read("files/pageConfig/clip.mp4"), "first");
}

TEST(FolveroOutput, RemovesLeftoversOfClearedSettings) {
    PublishedBook book(fileProperty("innerMainbgImgUrl", "/x/y.png"));
    for (const QString& name :
         QString("innerMainbgImgUrl.jpg mainbgImgUrl.jpg mainbgImgUrl.png mainbgImgUrl.gif "
                 "mainbgImgUrl.jpeg backgroundSoundURL.mp3 backgroundSoundURL.wav")
             .split(' '))
        book.write("files/extfiles/" + name, "old");
    book.publish();
    EXPECT_EQ(book.files("files/extfiles"),
              "backgroundSoundURL.wav innerMainbgImgUrl.jpg mainbgImgUrl.jpeg moveSound.mp3");
}

TEST(FolveroOutput, RemovesAnEarlierLogo) {
    PublishedBook book(fileProperty("logoFile", QString()));
    const auto publishWithLogo = [&book](const char* name) {
        book.flashTemplate->setPropertyValue("logoFile", book.addSource(name, "logo"));
        book.publish();
        return book.files("files/extfiles");
    };
    EXPECT_EQ(publishWithLogo("a.webp"), "logoFile.webp moveSound.mp3");
    EXPECT_EQ(publishWithLogo("a.PNG"), "logoFile.PNG moveSound.mp3");
    EXPECT_EQ(publishWithLogo("a.png"), "logoFile.png moveSound.mp3");
    book.flashTemplate->setPropertyValue("logoFile", QString());
    book.publish();
    EXPECT_EQ(book.files("files/extfiles"), "moveSound.mp3");
}

TEST(FolveroOutput, CopiesSettingsFilesAtAnyDepthButNotBelowAMissingOne) {
    PublishedBook book;
    const QString file = book.addSource("a.png", "a");
    book.library.addTemplate(
        "float",
        fileProperty("top", file, fileProperty("below", file)) +
            TemplateLibrary::composite(
                "group", fileProperty("missing", book.sourcePath("missing.png"),
                                      fileProperty("belowMissing", file)) +
                             fileProperty("empty", QString(), fileProperty("belowEmpty", file))));
    book.flashTemplate->loadTemplate("float");
    book.write("files/extfiles/missing.png", "old");
    book.publish();
    EXPECT_EQ(book.files("files/extfiles"), "below.png belowEmpty.png moveSound.mp3 top.png");
}

TEST(FolveroOutput, StepsWorkInTheCurrentFolderForAnyBaseButThatOfPages) {
    PublishedBook book(TemplateLibrary::composite("group", fileProperty("mainbgImgUrl", "") +
                                                               fileProperty("below", "")));
    const QString file = book.addSource("a.png", "a");
    book.addPage("1.jpg", 1, "one");
    book.annotations->setNeedFiles({file});
    const auto output = book.publisher();
    QDir().mkpath(book.sourcePath("current/files/extfiles"));
    QDir().mkpath(book.sourcePath("base"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(book.sourcePath("current"));
    book.addSource("current/files/extfiles/mainbgImgUrl.gif", "old");
    output->prepaireNomalPage(book.sourcePath("base"));
    output->removeExtFiles("base");
    book.flashTemplate->setPropertyValue("below", file);
    output->prepaireExtFiles("base", *book.flashTemplate->properties()[0]);
    output->PrepareAnnotationFiles("base");
    QDir::setCurrent(before);
    EXPECT_EQ(book.files("../sources"),
              "1.jpg a.png base/files/page/1.jpg current/files/extfiles/below.png "
              "current/files/pageConfig/a.png");
}

TEST(FolveroOutput, LeavesOutAMissingPageAndSaysWhich) {
    PublishedBook book;
    book.addPage("1.jpg", 1, "one");
    book.addPage("2.jpg", 2, "two");
    book.publish();
    book.addPage("3.php", 3, "a name that no file of a book has");
    QFile::remove(book.sourcePath("1.jpg"));
    const auto output = book.publisher();
    output->ouputTheBook();
    EXPECT_TRUE(output->publishErrors().isEmpty());
    EXPECT_EQ(output->missingPages(), (std::vector<int>{1, 3}));
    EXPECT_EQ(book.files("files/page"), "2.jpg");
}

TEST(FolveroOutput, NeverWritesOutsideItsFolder) {
    PublishedBook book;
    const QString file = book.addSource("a.png", "a");
    book.library.addTemplate(
        "float", fileProperty("../../../evil", file) + fileProperty("", "/x/.hidden") +
                     fileProperty(".", book.addSource("b", "b")) + fileProperty("a..b", file) +
                     fileProperty("run", book.addSource("c.php", "c")) +
                     fileProperty(QString(252, 'x'), file));
    book.flashTemplate->loadTemplate("float");
    book.annotations->setNeedFiles({file + "/..", "/", QString()});
    book.publisher("../escaped.html")->ouputTheBook();
    EXPECT_EQ(book.files(".."), "book/book.swf book/files/UserConfig.bin book/files/UserConfig.js "
                                "book/files/extfiles/a..b.png book/files/extfiles/moveSound.mp3 "
                                "sources/a.png sources/b sources/c.php");
}

TEST(FolveroOutput, ReplacesLinksThatLieInItsFolder) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.addPage("1.jpg", 1, "page");
    const QTemporaryDir outside;
    for (const char* name : {"secret", "page/1.jpg", "mainbgImgUrl.png"})
        TestFiles::write(outside.filePath(name), "kept");
    const std::map<QString, QString> links{
        {"index.html", "secret"}, {"files/page", "page"}, {"files/extfiles", ""}};
    QDir(book.folder()).mkdir("files");
    for (const auto& [name, target] : links)
        ASSERT_TRUE(QFile::link(outside.filePath(target), book.folder() + '/' + name));
    book.publish();
    EXPECT_EQ(book.read("files/page/1.jpg"), "page");
    for (const auto& [name, target] : links)
        EXPECT_FALSE(QFileInfo(book.folder() + '/' + name).isSymLink()) << name.toStdString();
    const std::map<QString, QByteArray> kept{
        {"mainbgImgUrl.png", "kept"}, {"page/1.jpg", "kept"}, {"secret", "kept"}};
    EXPECT_EQ(BookReader::contentsBeneath(outside.path()), kept);
}

class OwnPages : public FlashPageSource {
public:
    bool ownsPageFiles() const override { return true; }
};

TEST(FolveroOutput, SharesOnlyPageFilesOfItsOwn) {
    PublishedBook book;
    const auto sharesPage = [&](const char* content) {
        book.addPage("1.jpg", 1, content);
        book.publish();
        const auto page = (book.folder() + "/files/page/1.jpg").toStdString();
        return std::filesystem::equivalent(book.sourcePath("1.jpg").toStdString(), page);
    };
    EXPECT_FALSE(sharesPage("one"));
    book.pageSource = std::make_shared<OwnPages>();
    EXPECT_TRUE(sharesPage("another"));
    // Once more over the same file.
    book.publish();
    EXPECT_EQ(book.read("files/page/1.jpg"), "another");
}

// Books whose zoomed pages are files of their own.
class Zoomed : public FolveroOutput {
public:
    explicit Zoomed(const PublishedBook& book)
        : FolveroOutput(book.pageSource, book.flashTemplate, book.folder(), QString()) {
        iZoomedPageSameAsNormalPage = false;
    }
};

TEST(FolveroOutput, AddsZoomedPagesWhereTheirFolderIs) {
    PublishedBook book;
    for (const QString number : {"1", "2", "3"})
        book.addPage(number + ".jpg", number.toInt(), "new");
    QFile::remove(book.sourcePath("3.jpg"));
    auto pages = book.pageSource->pages();
    pages.push_back(nullptr);
    book.pageSource->setZoomedPages(pages);
    Zoomed(book).ouputTheBook();
    EXPECT_FALSE(book.exists("files/large"));
    book.write("files/large/2.swf", "old");
    book.write("base/files/large/4.swf", "old");
    Zoomed(book).ouputTheBook();
    Zoomed(book).prepaireZoomendPage(book.folder() + "/base");
    EXPECT_EQ(book.files("files/large"), "1.swf 2.swf");
    EXPECT_EQ(book.read("files/large/1.swf") + book.read("files/large/2.swf"), "newold");
    EXPECT_EQ(book.files("base"), "files/large/1.swf files/large/2.swf files/large/4.swf");
}

TEST(FolveroOutput, ReportsTheTitleOfTheBookThatItWouldReplace) {
    PublishedBook book;
    book.library.addFile("AppFiles/Templates/float/index.html",
                         "<head><title>${index.title}</title>\n"
                         "<meta name=\"generator\" content=\"Folvero\"></head>");
    EXPECT_TRUE(book.publisher()->titleOfExistingBook().isNull());
    const QString title = "<A & \"B\" &lt;>";
    book.HTMLConfig->setHTMLTitle(title.toHtmlEscaped());
    book.publish();
    EXPECT_EQ(book.publisher()->titleOfExistingBook(), title);
    EXPECT_EQ(book.publisher("other.html")->titleOfExistingBook(), title);
}

} // namespace
