#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"

#include "app/AppSettings.h"
#include "builder/PDFBuilder.h"
#include "pages/FlashPageSourcePDF.h"
#include "support/BookReader.h"
#include "support/PublishedBook.h"
#include "util/Base91.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

class PublishSheet : public testing::Test {
protected:
    PublishSheet() {
        QSettings().clear();
        book.addPage("1.jpg", 1, "first");
        book.library.addFile(
            "AppFiles/Templates/float/index.html",
            "<meta name=\"generator\" content=\"Folvero\"><title>${index.title}</title>");
        auto& settings = AppSettings::shareInstance();
        settings.setLastOutputFileFolder(book.folder());
        settings.setLastOutputFileName("mybook");
        settings.setLastOutputFileTitle("Tea & cake");
        settings.setOutputType(OutputWindow::htmlBook);
    }

    void open() {
        sheet = std::make_unique<OutputWindowDelegate>();
        sheet->setFlashTmpl(book.flashTemplate);
        sheet->setFlashPageSource(book.pageSource);
        sheet->setQuestions({[this](const QString&) { return folderAnswer; },
                             [this](const QString&, const QString& lost) {
                                 losses << lost;
                                 return replaceAnswer;
                             },
                             [this](const QString& message, const QString& information) {
                                 questions << message << information;
                                 progressUnderQuestions +=
                                     window().findChildren<QProgressDialog*>().size();
                                 return openAnswer;
                             },
                             [this](const QString& path) { opened << path; },
                             [this](const QString&, const QString& cause) { told << cause; },
                             [this](const QString&, const QString&) {
                                 ++textQuestions;
                                 return includesText;
                             }});
        sheet->beginSheet();
        QObject::connect(&window(), &QDialog::finished, [this](int code) { ended << code; });
    }
    OutputWindow& window() { return sheet->window(); }
    void openForWebBook() {
        for (const char* part : {"web.js", "web.css", "vectors.js", "reading.js", "notes.js",
                                 "contents.js", "search.js", "single.js", "offline.js", "sw.js"})
            book.library.addFile(QString("AppFiles/Web/") + part, part);
        open();
        window().mOutputType->button(OutputWindow::webBook)->click();
    }
    void importPages(int count) {
        const QString file = book.addSource("book.pdf", PDFBuilder::blank(count, {300, 400}));
        book.pageSource = std::make_shared<FlashPageSourcePDF>(file, "ALL", 144, 100);
        book.pageSource->generatePages();
        book.pageSource->generateNormalPages();
    }
    void propose(const QString& document) {
        sheet->setDocument("/docs/" + document + ".pdf", document);
        sheet->beginSheet();
    }
    // Of folder, name and title.
    QStringList texts() {
        return {QFileInfo(window().txtOutputFolder->text()).fileName(),
                window().txtOutputName->text(), window().txtTitle->text()};
    }
    void publish() { click(window().btnPublish); }
    void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    PublishedBook book;
    std::unique_ptr<OutputWindowDelegate> sheet;
    std::optional<QString> folderAnswer;
    bool replaceAnswer = false, openAnswer = false;
    std::optional<bool> includesText;
    QStringList losses, questions, opened, told;
    QList<int> ended;
    qsizetype progressUnderQuestions = 0;
    int textQuestions = 0;
};

} // namespace

TEST_F(PublishSheet, PublishesAPageIntoAFolderThatItMakes) {
    openAnswer = true;
    open();
    window().txtOutputFolder->setText(book.folder() + "/all/new");
    publish();
    EXPECT_TRUE(book.read("all/new/mybook.html").endsWith("<title>Tea &amp; cake</title>"));
    EXPECT_EQ(book.read("all/new/files/page/1.jpg"), "first");
    EXPECT_EQ(opened, QStringList{book.folder() + "/all/new/mybook.html"});
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(PublishSheet, ProposesWhatWasNeverChosenAndAsksForTheRest) {
    open();
    for (auto* field : {window().txtOutputFolder, window().txtOutputName, window().txtTitle})
        field->clear();
    propose("Field trip");
    EXPECT_EQ(texts(), QStringList({"Field trip", "index", "Field trip"}));
    EXPECT_EQ(window().txtOutputFolder->text(), QDir::homePath() + "/Field trip");
    window().txtTitle->setText("My title");
    sheet->beginSheet();
    EXPECT_EQ(texts(), QStringList({"Field trip", "index", "My title"}));
    for (auto* field : {window().txtOutputFolder, window().txtOutputName}) {
        const QString proposed = field->text();
        field->setText(" ");
        EXPECT_FALSE(window().btnPublish->isEnabled());
        field->setText(proposed);
    }
}

TEST_F(PublishSheet, ProposalsBelongToTheDocumentAlsoInTheNextRun) {
    open();
    propose("Chronicle");
    EXPECT_EQ(texts(), QStringList({"Chronicle", "mybook", "Chronicle"}));
    window().txtOutputFolder->setText(book.folder());
    window().txtTitle->setText("Our town");
    publish();
    open();
    propose("Menu");
    EXPECT_EQ(texts(), QStringList({"Menu", "mybook", "Menu"}));
    open();
    propose("Chronicle");
    EXPECT_EQ(window().txtOutputFolder->text(), book.folder());
    EXPECT_EQ(window().txtTitle->text(), "Our town");
    publish();
    EXPECT_TRUE(losses.isEmpty()) << "its own book";
}

TEST_F(PublishSheet, AsksBeforeAnotherDocumentsBookOrAPageOfOthersIsLost) {
    const auto publishFor = [&](const QString& document) {
        open();
        propose(document);
        window().txtOutputFolder->setText(book.folder());
        publish();
        return QString::fromUtf8(book.read("mybook.html"));
    };
    publishFor("Apples");
    EXPECT_TRUE(losses.isEmpty());
    EXPECT_TRUE(publishFor("Bears").contains("Apples"));
    ASSERT_EQ(losses.size(), 1);
    EXPECT_EQ(losses[0], "The book “Apples” in " + book.folder() + " would be lost.");
    EXPECT_TRUE(window().isVisible()) << "for another folder";
    replaceAnswer = true;
    EXPECT_TRUE(publishFor("Bears").contains("Bears"));
    publishFor("Apples");
    EXPECT_EQ(losses.size(), 3) << "the folder is no longer this document's";
    book.write("mybook.html", "my own page");
    replaceAnswer = false;
    EXPECT_EQ(publishFor("Apples"), "my own page");
    ASSERT_EQ(losses.size(), 4);
    const QString page = book.folder() + "/mybook.html";
    EXPECT_EQ(losses[3], "This is not part of a book and would be lost:\n" + page);
    QFile::remove(book.folder() + "/files/UserConfig.bin");
    for (const char* name : {"2", "3", "4"})
        book.write(QString("files/page/%1.jpg").arg(name), "my own picture");
    publishFor("Cats");
    EXPECT_EQ(losses[4].split('\n').mid(1).size(), 4) << losses[4].toStdString();
    EXPECT_TRUE(losses[4].endsWith("\n…"));
}

// The pages were imported for a classic book: what a web book needs of them is made once.
TEST_F(PublishSheet, PublishesAWebBookWithProgressThatEndsBeforeTheQuestion) {
    importPages(3);
    openForWebBook();
    publish();
    const auto* progress = window().findChild<QProgressDialog*>();
    ASSERT_TRUE(progress && progress->isVisible());
    EXPECT_EQ(progress->labelText(), "Making the pages of the book…\nPage 1 of 3 – 0 %");
    EXPECT_FALSE(progress->findChild<QProgressBar*>()->isTextVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
    EXPECT_EQ(questions.size(), 2);
    EXPECT_EQ(progressUnderQuestions, 0);
    EXPECT_TRUE(told.isEmpty()) << told.join(u' ').toStdString();
    EXPECT_EQ(book.read("files/web.js"), "web.js");
    EXPECT_TRUE(book.exists("files/thumb/3.jpg"));
    EXPECT_FALSE(book.exists("book.swf"));
    EXPECT_EQ(AppSettings().outputType(), OutputWindow::webBook);

    window().txtTitle->setText("Another");
    publish();
    EXPECT_EQ(ended, QList<int>({1, 1})) << "at once";
}

TEST_F(PublishSheet, AsksForTextThatTheDocumentForbidsToCopy) {
    PDFBuilder builder;
    builder.addPage(PDFBuilder::page({300, 400}));
    builder.encrypt({}, "owner", -4 & ~16);
    const QString file = book.addSource("book.pdf", builder.build());
    const auto source = std::make_shared<FlashPageSourcePDF>(file, "ALL", 144, 100);
    source->generatePages();
    source->generateNormalPages();
    book.pageSource = source;
    openForWebBook();
    Book imported;
    imported.pageSource = source;
    imported.document = source->toPageConverter()->PDFDoc();
    sheet->setBook(imported);
    publish(); // and cancel
    EXPECT_TRUE(window().isVisible() && !book.exists("mybook.html"));
    for (const bool answer : {true, false}) {
        includesText = answer;
        ended.clear();
        publish();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
        EXPECT_EQ(book.exists("text.html"), answer);
    }
    EXPECT_TRUE(QFile::remove(file));
    imported.document->stopReader();
    publish();
    EXPECT_EQ(textQuestions, 4) << "whose permissions can't be read";
}

TEST_F(PublishSheet, CancelsAWebBookWhileItsPagesAreMade) {
    importPages(100);
    openForWebBook();
    window().txtOutputFolder->setText(book.folder() + "/new");
    publish();
    window().findChild<QProgressDialog*>()->findChild<QPushButton*>()->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window().findChild<QProgressDialog*>(); }, 20000));
    EXPECT_TRUE(window().isVisible() && ended.isEmpty()) << "for other choices";
    EXPECT_FALSE(book.exists("new"));
    EXPECT_FALSE(book.pageSource->pagesWithout(PageFiles::web).empty());
    EXPECT_TRUE(questions.isEmpty() && told.isEmpty());
}

TEST_F(PublishSheet, NamesThePageAndTheFileThatHaveGone) {
    book.library.addTemplate(
        "float", TemplateLibrary::composite(
                     "group", TemplateLibrary::property("logoFile", "/gone/logo.png", "pt_file")));
    book.flashTemplate->loadTemplate("float");
    book.addPage("2.jpg", 2, "second");
    open();
    ASSERT_TRUE(QFile::remove(book.pageSource->pages().back()->pageFilePath()));
    publish();
    EXPECT_EQ(told.filter(": 2.").size(), 1) << told.join(u' ').toStdString();
    EXPECT_EQ(told.filter("/gone/logo.png\n").size(), 1) << told.join(u' ').toStdString();
    EXPECT_EQ(questions.size(), 2);
}

TEST_F(PublishSheet, PublishesAnApplication) {
    book.library.addFile("AppFiles/TmplData/mac.app/Contents/Info.plist", "");
    AppSettings::shareInstance().setOutputType(OutputWindow::application);
    AppSettings::shareInstance().setPageSize({300, 400});
    open();
    publish();
    const QString resources = "mybook.app/Contents/Resources";
    EXPECT_TRUE(book.exists(resources + "/index.html"));
    EXPECT_EQ(
        BookReader::configuration(book.folder() + '/' + resources).textAt("Ppts/Ppt/Normal/Width"),
        "300");
    EXPECT_TRUE(opened.isEmpty()) << "the answer was no";
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(AppSettings().outputType(), OutputWindow::application);
}

TEST_F(PublishSheet, StaysAliveAndOpenWhileABookIsWritten) {
    open();
    bool wasAlive = false;
    QMetaObject::invokeMethod(
        sheet.get(),
        [&] {
            wasAlive = window().findChild<QProgressDialog*>() != nullptr;
            sheet->onCancel();
            sheet->onPublish();
        },
        Qt::QueuedConnection);
    sheet->onPublish();
    EXPECT_TRUE(wasAlive);
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(questions.size(), 2);
    EXPECT_TRUE(book.exists("mybook.html"));
}

TEST_F(PublishSheet, OffersAWebBookInOneFileAndTheTextToEmbedIt) {
    AppSettings::shareInstance().setPageSize({420, 595});
    open();
    EXPECT_FALSE(window().btnMore->isVisible() || window().txtEmbed->isVisible());
    openForWebBook();
    EXPECT_FALSE(window().txtEmbed->isVisible());
    QTest::keyClick(window().btnMore, Qt::Key_Space);
    window().txtTitle->setText("\"Tea\" & <cake>");
    click(window().btnCopyEmbed);
    const auto embed = [](const char* address) {
        return QString("<iframe src=\"%1\" title=\"&quot;Tea&quot; &amp; &lt;cake&gt;\" "
                       "loading=\"lazy\" allowfullscreen style=\"width: 100%; "
                       "aspect-ratio: 840 / 595; border: 0\"></iframe>")
            .arg(address);
    };
    EXPECT_EQ(QGuiApplication::clipboard()->text(), embed("BOOK-ADDRESS/mybook.html"));
    EXPECT_EQ(window().txtEmbed->selectedText(), window().txtEmbed->text());
    window().txtAddress->setText("http://x.org/a");
    EXPECT_EQ(window().txtEmbed->text(), embed("http://x.org/a/mybook.html"));
    window().mOutputType->button(OutputWindow::webBookInOneFile)->click();
    publish();
    EXPECT_TRUE(told.isEmpty()) << told.join(u' ').toStdString();
    EXPECT_EQ(QDir(book.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"mybook.html"});
    EXPECT_TRUE(book.read("mybook.html").contains(Base91::encode("first")));
    open();
    EXPECT_EQ(window().mOutputType->checkedId(), OutputWindow::webBookInOneFile);
}

TEST_F(PublishSheet, AddressAndReadingSampleAreCheckedPublishedAndKeptForTheirDocument) {
    importPages(3);
    openForWebBook();
    propose("Tea");
    window().txtOutputFolder->setText(book.folder());
    std::optional<PublishResult> result;
    QObject::connect(sheet.get(), &OutputWindowDelegate::bookPublished,
                     [&](const PublishResult& published) { result = published; });
    for (auto* field : {window().txtAddress, window().txtSample}) {
        for (const char* wrong : {"example.org", "2-x", "4-9", "https://x.org/?a"}) {
            field->setText(wrong);
            publish();
            EXPECT_TRUE(field->isVisible() && field->selectedText() == wrong) << wrong;
        }
        field->clear();
    }
    EXPECT_TRUE(ended.isEmpty() && !book.exists("mybook.html"));
    window().txtAddress->setText(" https://example.org/tea ");
    window().txtSample->setText("2-9");
    publish();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
    EXPECT_TRUE(book.exists("files/web/share.jpg")) << "which only books with an address have";
    EXPECT_TRUE(book.exists("files/thumb/2.jpg") && !book.exists("files/thumb/1.jpg"));
    ASSERT_TRUE(result);
    EXPECT_EQ(result->link, "https://example.org/tea/mybook.html");
    EXPECT_TRUE(result->embed.contains(result->link));
    propose("Cake");
    EXPECT_EQ(window().txtAddress->text() + window().txtSample->text(), "");
    open();
    propose("Tea");
    EXPECT_EQ(window().txtAddress->text(), "https://example.org/tea");
    EXPECT_EQ(window().txtSample->text(), "2-9");
    EXPECT_TRUE(window().btnMore->isChecked()) << "what is chosen is seen";
}

TEST_F(PublishSheet, NamesWhatAnApplicationOrATemplateLacks) {
    AppSettings::shareInstance().setOutputType(OutputWindow::application);
    open();
    publish();
    EXPECT_EQ(told.filter("is missing; the program is not installed completely").size(), 1);
    AppSettings::shareInstance().setOutputType(OutputWindow::htmlBook);
    book.library.addFile("AppFiles/Templates/float/index.html", "\n");
    open();
    publish();
    EXPECT_EQ(told.filter("index.html: the page of the template \"float\" is missing").size(), 1);
    EXPECT_FALSE(book.exists("mybook.app") || book.exists("mybook.html"));
    EXPECT_EQ(ended, QList<int>({1, 1}));
}

TEST_F(PublishSheet, RemembersTheChoicesAlsoWhenPublishingFails) {
    book.write("no", "a file");
    open();
    const QString folder = book.folder() + "/no/such/folder";
    window().txtOutputFolder->setText(folder);
    window().txtOutputName->setText("other");
    window().txtTitle->setText("Other");
    publish();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(
        told[0].startsWith("The folder " + folder + " could not be made: Not a directory\n"));
    EXPECT_TRUE(questions.isEmpty());
    EXPECT_EQ(ended, QList<int>{1});
    AppSettings::shareInstance().loadSettings();
    open();
    EXPECT_EQ(texts(), QStringList({"folder", "other", "Other"}));
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(ended, QList<int>({1, 0}));
}

TEST_F(PublishSheet, AsksForTheFolderAndShowsIt) {
    open();
    folderAnswer = "/some/where";
    click(window().btnSelectFolder);
    folderAnswer = std::nullopt;
    click(window().btnSelectFolder);
    EXPECT_EQ(window().txtOutputFolder->text(), "/some/where");
    click(window().btnOpenFolder);
    EXPECT_EQ(opened, QStringList{"/some/where"});
}
