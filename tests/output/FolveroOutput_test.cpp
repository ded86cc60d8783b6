#include "output/FolveroOutput.h"

#include "support/BookReader.h"
#include "support/PublishedBook.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

QString fileProperty(const char* key, const QString& value, const QString& children = QString()) {
    return TemplateLibrary::property(text(key), value, text("pt_file"), children);
}

TEST(FolveroOutput, WritesAWholeBook) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.flashTemplate->setPropertyValue(text("mainbgImgUrl"),
                                         book.addSource(text("bg.PNG"), "background"));
    book.addPage(text("1.jpg"), 1, "page one");
    book.addPage(text("p12.swf"), 12, "page twelve");
    book.annotations = std::make_shared<FlashPagesAnnotations>();
    book.annotations->setNeedFiles({book.addSource(text("clip.v2.mp4"), "clip")});
    book.HTMLConfig->setHTMLTitle(text("My book"));
    book.publish();
    EXPECT_EQ(
        BookReader::filesBeneath(book.folder()),
        (QStringList{text("book.swf"), text("files/UserConfig.bin"), text("files/UserConfig.js"),
                     text("files/extfiles/mainbgImgUrl.PNG"), text("files/extfiles/moveSound.mp3"),
                     text("files/page/1.jpg"), text("files/page/12.swf"),
                     text("files/pageConfig/clip.v2.mp4"), text("index.html")}));
    EXPECT_EQ(book.read(text("files/page/12.swf")), "page twelve");
    EXPECT_EQ(book.read(text("files/extfiles/mainbgImgUrl.PNG")), "background");
    EXPECT_EQ(book.read(text("files/extfiles/moveSound.mp3")), "moveSound.mp3");
    EXPECT_EQ(book.read(text("book.swf")), "book.swf");
    EXPECT_EQ(book.read(text("files/pageConfig/clip.v2.mp4")), "clip");
    EXPECT_EQ(book.read(text("index.html")), "<title>My book</title>");
    const auto pages = BookReader::configuration(book.folder()).at(text("Ppts")).children;
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[1].textAt(text("Normal/ImgPath")), text("page/12.swf"));
}

TEST(FolveroOutput, WritesTheConfigurationIndentedAndInItsTrueLength) {
    PublishedBook book;
    book.publish();
    const QByteArray xml = BookReader::decipher(book.read(text("files/UserConfig.bin")));
    EXPECT_TRUE(xml.startsWith("<?xml version=\"1.0\"?>\n<SlidePowerPoint>\n"));
    EXPECT_TRUE(xml.contains("\n        <Search>No</Search>\n"));
    EXPECT_TRUE(xml.endsWith("</SlidePowerPoint>\n"));
}

TEST(FolveroOutput, WritesTheSameConfigurationForBooksOpenedFromDisk) {
    PublishedBook book;
    book.publish();
    EXPECT_EQ(BookReader::bytesOfScript(book.read(text("files/UserConfig.js"))),
              book.read(text("files/UserConfig.bin")));
}

TEST(FolveroOutput, NamesItsFilesAfterTheFolderAndTheName) {
    PublishedBook book;
    EXPECT_EQ(book.publisher()->outputHTMLFileName(), book.folder() + text("/index.html"));
    const auto named = book.publisher(text("book.html"));
    EXPECT_EQ(named->outputFileName(), book.folder() + text("/book.html"));
    EXPECT_EQ(named->outputSWFName(), book.folder() + text("/book.swf"));
    named->ouputTheBook();
    EXPECT_TRUE(book.exists(text("book.html")));
    EXPECT_FALSE(book.exists(text("index.html")));
    EXPECT_EQ(book.publisher(text(""))->outputHTMLFileName(), book.folder());
}

TEST(FolveroOutput, CopiesTheTemplatesPageWithoutHTMLSettings) {
    PublishedBook book;
    book.HTMLConfig.reset();
    book.write(text("index.html"), "old");
    book.publish();
    EXPECT_EQ(book.read(text("index.html")), "<title>${index.title}</title>");

    QFile::remove(book.flashTemplate->tmplHTMLFilePath());
    book.publish();
    EXPECT_FALSE(book.exists(text("index.html")));
}

TEST(FolveroOutput, DoesNothingWithoutItsFolder) {
    PublishedBook book;
    QDir(book.folder()).removeRecursively();
    const auto output = book.publisher();
    output->ouputTheBook();
    EXPECT_TRUE(output->publishErrors().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(book.folder()));
}

TEST(FolveroOutput, ReplacesPagesAndSettingsFilesButNotFilesOfLinks) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.flashTemplate->setPropertyValue(text("mainbgImgUrl"),
                                         book.addSource(text("bg.png"), "first"));
    book.addPage(text("1.jpg"), 1, "first");
    book.annotations = std::make_shared<FlashPagesAnnotations>();
    book.annotations->setNeedFiles({book.addSource(text("clip.mp4"), "first"),
                                    book.addSource(text("other/clip.mp4"), "second of a name")});
    book.publish();
    for (const char* name : {"bg.png", "1.jpg", "clip.mp4"})
        book.addSource(text(name), "second");
    book.publish();
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "second");
    EXPECT_EQ(book.read(text("files/extfiles/mainbgImgUrl.png")), "second");
    EXPECT_EQ(book.read(text("files/pageConfig/clip.mp4")), "first");
}

TEST(FolveroOutput, RemovesLeftoversOfClearedSettings) {
    PublishedBook book(fileProperty("innerMainbgImgUrl", text("/x/y.png")));
    const QStringList leftovers{text("innerMainbgImgUrl.jpg"), text("mainbgImgUrl.jpg"),
                                text("mainbgImgUrl.png"),      text("mainbgImgUrl.gif"),
                                text("mainbgImgUrl.jpeg"),     text("backgroundSoundURL.mp3"),
                                text("backgroundSoundURL.wav")};
    for (const QString& name : leftovers)
        book.write(text("files/extfiles/") + name, "old");
    book.publish();
    EXPECT_EQ(BookReader::filesBeneath(book.folder() + text("/files/extfiles")),
              (QStringList{text("backgroundSoundURL.wav"), text("innerMainbgImgUrl.jpg"),
                           text("mainbgImgUrl.jpeg"), text("moveSound.mp3")}));
}

TEST(FolveroOutput, CopiesSettingsFilesAtAnyDepthButNotBelowAMissingOne) {
    PublishedBook book;
    const QString file = book.addSource(text("a.png"), "a");
    const QString missing = book.sourcePath(text("missing.png"));
    book.library.addTemplate(
        text("float"),
        fileProperty("top", file, fileProperty("below", file)) +
            fileProperty("topMissing", missing, fileProperty("belowTopMissing", file)) +
            TemplateLibrary::composite(
                text("group"),
                fileProperty("missing", missing, fileProperty("belowMissing", file)) +
                    fileProperty("empty", QString(), fileProperty("belowEmpty", file))));
    book.flashTemplate->loadTemplate(text("float"));
    book.write(text("files/extfiles/missing.png"), "old");
    book.write(text("files/extfiles/topMissing.png"), "old");
    book.publish();
    EXPECT_EQ(BookReader::filesBeneath(book.folder() + text("/files/extfiles")),
              (QStringList{text("below.png"), text("belowEmpty.png"), text("belowTopMissing.png"),
                           text("moveSound.mp3"), text("top.png")}));
}

TEST(FolveroOutput, LeavesOutAMissingPageAndSaysWhich) {
    PublishedBook book;
    book.addPage(text("1.jpg"), 1, "one");
    book.addPage(text("2.jpg"), 2, "two");
    book.publish();
    QFile::remove(book.sourcePath(text("1.jpg")));
    const auto output = book.publisher();
    output->ouputTheBook();
    EXPECT_TRUE(output->publishErrors().isEmpty());
    EXPECT_EQ(output->missingPages(), std::vector<int>{1});
    EXPECT_FALSE(book.exists(text("files/page/1.jpg")));
    EXPECT_TRUE(book.exists(text("files/page/2.jpg")));
}

TEST(FolveroOutput, DropsEarlierPlayerFilesThatTheTemplateLacks) {
    PublishedBook book;
    book.publish();
    QFile::remove(book.library.templatePath(text("float")) + text("/book.swf"));
    book.publish();
    EXPECT_FALSE(book.exists(text("book.swf")));
    EXPECT_TRUE(book.exists(text("files/extfiles/moveSound.mp3")));
}

TEST(FolveroOutput, NeverWritesOutsideItsFolder) {
    PublishedBook book;
    const QString file = book.addSource(text("a.png"), "a");
    book.library.addTemplate(text("float"), fileProperty("../../../evil", file) +
                                                fileProperty("", text("/x/.hidden")) +
                                                fileProperty(".", book.addSource(text("b"), "b")) +
                                                fileProperty("a..b", file));
    book.flashTemplate->loadTemplate(text("float"));
    book.annotations = std::make_shared<FlashPagesAnnotations>();
    book.annotations->setNeedFiles({file + text("/.."), text("/"), QString()});
    const auto output = book.publisher(text("../escaped.html"));
    output->setFlashPagesAnnotations(book.annotations);
    output->ouputTheBook();
    EXPECT_EQ(output->publishErrors(), QStringList());
    EXPECT_EQ(BookReader::filesBeneath(QFileInfo(book.folder()).path()),
              (QStringList{text("book/book.swf"), text("book/files/UserConfig.bin"),
                           text("book/files/UserConfig.js"), text("book/files/extfiles/a..b.png"),
                           text("book/files/extfiles/moveSound.mp3"), text("sources/a.png"),
                           text("sources/b")}));
}

TEST(FolveroOutput, GivesNoFileANameThatOthersCouldMisuse) {
    PublishedBook book;
    const QString file = book.addSource(text("a.png"), "a");
    const QString long250(250, u'x');
    book.library.addTemplate(
        text("float"), fileProperty(".htaccess", file) +
                           fileProperty("", book.addSource(text("b.htaccess"), "b")) +
                           fileProperty("..\\..\\evil", file) + fileProperty("/etc/passwd", file) +
                           fileProperty("a&#10;b", file) +
                           fileProperty("web", book.addSource(text("c.config"), "c")) +
                           fileProperty("run", book.addSource(text("d.php"), "d")) +
                           fileProperty("NUL", file) +
                           TemplateLibrary::property(long250 + text("xx"), file, text("pt_file")) +
                           TemplateLibrary::property(long250, file, text("pt_file")) +
                           fileProperty("Bild \xfc 1", file));
    book.flashTemplate->loadTemplate(text("float"));
    book.publish();
    EXPECT_EQ(
        BookReader::filesBeneath(book.folder() + text("/files/extfiles")),
        (QStringList{text("Bild \xfc 1.png"), text("moveSound.mp3"), long250 + text(".png")}));
}

TEST(FolveroOutput, ReplacesLinksThatLieInItsFolder) {
    PublishedBook book(fileProperty("mainbgImgUrl", QString()));
    book.addPage(text("1.jpg"), 1, "page");
    book.annotations = std::make_shared<FlashPagesAnnotations>();
    book.annotations->setNeedFiles({book.addSource(text("clip.mp4"), "clip")});
    const QTemporaryDir outside;
    for (const char* name : {"secret", "page/1.jpg", "pageConfig/clip.mp4", "mainbgImgUrl.png"})
        TestFiles::write(outside.filePath(text(name)), "kept");
    const auto link = [&](const char* to, const char* name) {
        ASSERT_TRUE(QFile::link(outside.filePath(text(to)), book.folder() + text(name)));
    };
    for (const char* name : {"/index.html", "/book.swf"})
        link("secret", name);
    QDir(book.folder()).mkdir(text("files"));
    link("secret", "/files/UserConfig.bin");
    link("page", "/files/page");
    link("pageConfig", "/files/pageConfig");
    link("", "/files/extfiles");
    book.publish();
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "page");
    EXPECT_EQ(book.read(text("files/pageConfig/clip.mp4")), "clip");
    for (const char* name : {"index.html", "book.swf", "files/page", "files/UserConfig.bin",
                             "files/extfiles", "files/pageConfig"})
        EXPECT_FALSE(QFileInfo(book.folder() + u'/' + text(name)).isSymLink()) << name;
    EXPECT_EQ(BookReader::filesBeneath(outside.path()),
              (QStringList{text("mainbgImgUrl.png"), text("page/1.jpg"),
                           text("pageConfig/clip.mp4"), text("secret")}));
    for (const QString& name : BookReader::filesBeneath(outside.path()))
        EXPECT_EQ(TestFiles::read(outside.filePath(name)), "kept");
}

ino_t inode(const QString& path) {
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_ino : 0;
}

class OwnPages : public FlashPageSource {
public:
    bool ownsPageFiles() const override { return true; }
};

TEST(FolveroOutput, SharesOnlyPageFilesOfItsOwn) {
    PublishedBook book;
    const auto sharesPage = [&](const char* content) {
        book.addPage(text("1.jpg"), 1, content);
        book.publish();
        return inode(book.sourcePath(text("1.jpg"))) ==
               inode(book.folder() + text("/files/page/1.jpg"));
    };
    EXPECT_FALSE(sharesPage("one"));
    book.pageSource = std::make_shared<OwnPages>();
    EXPECT_TRUE(sharesPage("another"));
    // Once more over the same file.
    book.publish();
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "another");
}

class ZoomedOutput : public FolveroOutput {
public:
    using FolveroOutput::FolveroOutput;
    void separateZoomedPages() { iZoomedPageSameAsNormalPage = false; }
};

TEST(FolveroOutput, WritesSeparateZoomedPagesOnlyIntoAnExistingFolder) {
    PublishedBook book;
    book.addPage(text("3.jpg"), 3, "three");
    book.pageSource->setZoomedPages(book.pageSource->pages());
    ZoomedOutput output(book.pageSource, book.flashTemplate, book.folder(), QString());
    output.prepaireZoomendPage(text(""));
    EXPECT_FALSE(book.exists(text("files/large")));
    output.separateZoomedPages();
    output.prepaireZoomendPage(text(""));
    EXPECT_FALSE(book.exists(text("files/large")));
    QDir(book.folder()).mkpath(text("files/large"));
    output.prepaireZoomendPage(text(""));
    EXPECT_EQ(book.read(text("files/large/3.swf")), "three");
    EXPECT_EQ(output.getZoomedPageURL(*book.pageSource->pages().front()), text("page/3.jpg"));

    book.addSource(text("3.jpg"), "changed");
    output.prepaireZoomendPage(text(""));
    EXPECT_EQ(book.read(text("files/large/3.swf")), "three");
}

TEST(FolveroOutput, RunsAStepByItselfInAnyBaseFolder) {
    PublishedBook book;
    book.addPage(text("1.jpg"), 1, "one");
    const QString base = book.folder() + text("/else/where");
    book.publisher()->prepaireNomalPage(base);
    EXPECT_EQ(BookReader::filesBeneath(book.folder()),
              QStringList{text("else/where/files/page/1.jpg")});
}

TEST(FolveroOutput, TakesAnyBaseOfSettingsFilesForTheCurrentFolder) {
    PublishedBook book(fileProperty("key", QString()));
    book.flashTemplate->setPropertyValue(text("key"), book.addSource(text("a.png"), "a"));
    QDir(book.folder()).mkdir(text("current"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(book.folder() + text("/current")));
    book.publisher()->prepaireExtFiles(text("/somewhere/else"));
    QDir::setCurrent(before);
    EXPECT_EQ(BookReader::filesBeneath(book.folder()),
              QStringList{text("current/files/extfiles/key.png")});
}

TEST(FolveroOutput, TellsTheTitleOfTheBookThatItWouldReplace) {
    PublishedBook book;
    book.library.addFile(text("AppFiles/Templates/float/index.html"),
                         "<head><title>${index.title}</title>\n"
                         "<meta name=\"generator\" content=\"Folvero\"></head>");
    EXPECT_TRUE(book.publisher()->titleOfExistingBook().isNull());
    book.HTMLConfig->setHTMLTitle(text("<A & \"B\" &lt;>").toHtmlEscaped());
    book.publish();
    EXPECT_EQ(book.publisher()->titleOfExistingBook(), text("<A & \"B\" &lt;>"));
    EXPECT_EQ(book.publisher(text("other.html"))->titleOfExistingBook(), text("<A & \"B\" &lt;>"));
}

} // namespace
