#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"

#include "app/AppSettings.h"
#include "platform/Bundle.h"
#include "platform/PlatformException.h"
#include "support/PublishedBook.h"
#include "support/RecordedLog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

class PublishSheet : public testing::Test {
protected:
    PublishSheet() {
        QSettings().clear();
        book.addPage(text("1.jpg"), 1, "first");
        book.library.addFile(
            text("AppFiles/Templates/float/index.html"),
            "<meta name=\"generator\" content=\"Folvero\"><title>${index.title}</title>");
        auto& settings = AppSettings::shareInstance();
        settings.setLastOutputFileFolder(book.folder());
        settings.setLastOutputFileName(text("mybook"));
        settings.setLastOutputFileTitle(text("Tea & cake"));
        settings.setOutputType(OutputWindow::htmlBook);
    }

    void open() {
        sheet = std::make_unique<OutputWindowDelegate>();
        sheet->setFlashTmpl(book.flashTemplate);
        sheet->setFlashPageSource(book.pageSource);
        sheet->setQuestions({[this](const QString& prompt) {
                                 prompts << prompt;
                                 return folderAnswer;
                             },
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
                             [this](const QString&, const QString& cause) { told << cause; }});
        sheet->beginSheet();
        QObject::connect(&window(), &QDialog::finished, [this](int code) { ended << code; });
    }
    OutputWindow& window() { return sheet->window(); }
    static void installWebPlayer() {
        for (const char* part : {"web.js", "web.css", "offline.js", "sw.js"}) {
            const QString folder = Bundle::resourcePath() + text("/AppFiles/Web/");
            ASSERT_TRUE(QDir().mkpath(folder));
            TestFiles::write(folder + text(part), part);
        }
    }
    void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    PublishedBook book;
    std::unique_ptr<OutputWindowDelegate> sheet;
    std::optional<QString> folderAnswer;
    bool replaceAnswer = false, openAnswer = false;
    QStringList prompts, losses, questions, opened, told;
    QList<int> ended;
    qsizetype progressUnderQuestions = 0;
};

} // namespace

TEST_F(PublishSheet, ShowsTheChoicesOfLastTime) {
    AppSettings::shareInstance().setOutputType(OutputWindow::application);
    open();
    EXPECT_EQ(window().txtOutputFolder->text(), book.folder());
    EXPECT_EQ(window().txtOutputName->text(), text("mybook"));
    EXPECT_EQ(window().txtTitle->text(), text("Tea & cake"));
    EXPECT_EQ(window().mOutputType->checkedId(), OutputWindow::application);
}

TEST_F(PublishSheet, PublishesAPageIntoAFolderThatItMakes) {
    openAnswer = true;
    open();
    window().txtOutputFolder->setText(book.folder() + text("/new"));
    click(window().btnPublish);
    EXPECT_TRUE(book.read(text("new/mybook.html")).endsWith("<title>Tea &amp; cake</title>"));
    EXPECT_EQ(book.read(text("new/files/page/1.jpg")), "first");
    EXPECT_EQ(questions, (QStringList{text("Open the result files?"),
                                      text("Publish finished! Open the it?")}));
    EXPECT_EQ(opened, QStringList{book.folder() + text("/new/mybook.html")});
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(PublishSheet, ProposesWhatWasNeverChosenAndAsksForTheRest) {
    open();
    for (auto* field : {window().txtOutputFolder, window().txtOutputName, window().txtTitle})
        field->clear();
    sheet->setDocument(text("/docs/Field trip.pdf"), text("Field trip"));
    sheet->beginSheet();
    EXPECT_EQ(QFileInfo(window().txtOutputFolder->text()).fileName(), text("Field trip"));
    EXPECT_TRUE(QFileInfo(window().txtOutputFolder->text()).dir().exists());
    EXPECT_EQ(window().txtOutputName->text(), text("index"));
    EXPECT_EQ(window().txtTitle->text(), text("Field trip"));
    EXPECT_TRUE(window().btnPublish->isEnabled());
    window().txtTitle->setText(text("My title"));
    sheet->beginSheet();
    EXPECT_EQ(window().txtTitle->text(), text("My title"));
    window().txtOutputName->setText(text(" "));
    EXPECT_FALSE(window().btnPublish->isEnabled());
    window().txtOutputName->setText(text("trip"));
    window().txtOutputFolder->clear();
    EXPECT_FALSE(window().btnPublish->isEnabled());
}

TEST_F(PublishSheet, ProposalsBelongToTheDocumentAlsoInTheNextRun) {
    const QString chronicle = text("/docs/Chronicle.pdf");
    const auto openFor = [this](const QString& document) {
        open();
        sheet->setDocument(document, QFileInfo(document).baseName());
        sheet->beginSheet();
    };
    openFor(chronicle);
    EXPECT_EQ(QFileInfo(window().txtOutputFolder->text()).fileName(), text("Chronicle"));
    EXPECT_EQ(window().txtTitle->text(), text("Chronicle")) << "not that of the last run";
    window().txtOutputFolder->setText(book.folder());
    window().txtTitle->setText(text("Our town"));
    click(window().btnPublish);
    openFor(text("/docs/Menu.pdf"));
    EXPECT_EQ(QFileInfo(window().txtOutputFolder->text()).fileName(), text("Menu"));
    EXPECT_EQ(window().txtTitle->text(), text("Menu"));
    openFor(chronicle);
    EXPECT_EQ(window().txtOutputFolder->text(), book.folder());
    EXPECT_EQ(window().txtTitle->text(), text("Our town"));
    click(window().btnPublish);
    EXPECT_TRUE(losses.isEmpty()) << "its own book";
}

TEST_F(PublishSheet, AsksBeforeAnotherDocumentsBookOrAPageOfOthersIsLost) {
    const QStringList documents{text("/docs/a.pdf"), text("/docs/b.pdf")};
    const auto publish = [&](int document, const QString& title) {
        open();
        sheet->setDocument(documents[document], title);
        sheet->beginSheet();
        window().txtOutputFolder->setText(book.folder());
        click(window().btnPublish);
    };
    const auto published = [&] { return QString::fromUtf8(book.read(text("mybook.html"))); };
    publish(0, text("Apples"));
    EXPECT_TRUE(losses.isEmpty());
    publish(1, text("Bears"));
    ASSERT_EQ(losses.size(), 1);
    EXPECT_TRUE(losses[0].contains(text("Apples")) && losses[0].contains(book.folder()));
    EXPECT_TRUE(published().contains(text("Apples")));
    EXPECT_TRUE(window().isVisible()) << "for another folder";
    replaceAnswer = true;
    click(window().btnPublish);
    EXPECT_TRUE(published().contains(text("Bears")));
    publish(0, text("Apples"));
    EXPECT_EQ(losses.size(), 3) << "the folder is no longer this document's";
    book.write(text("mybook.html"), "my own page");
    replaceAnswer = false;
    publish(0, text("Apples"));
    ASSERT_EQ(losses.size(), 4);
    EXPECT_TRUE(losses[3].contains(text("mybook.html")));
    EXPECT_EQ(published(), text("my own page"));
}

TEST_F(PublishSheet, ProgressOfAWebBookIsShownAsTextAndEndsBeforeTheQuestion) {
    installWebPlayer();
    QStringList labels;
    for (int run = 0; run < 2; ++run) {
        open();
        window().mOutputType->button(OutputWindow::webBook)->click();
        QTimer::singleShot(0, &window(), [&] {
            const auto* progress = window().findChild<QProgressDialog*>();
            ASSERT_TRUE(progress);
            labels << progress->labelText();
            EXPECT_FALSE(progress->findChild<QProgressBar*>()->isTextVisible());
        });
        click(window().btnPublish);
        EXPECT_EQ(questions.size(), 2 * (run + 1));
    }
    EXPECT_EQ(labels.filter(text("%")).size(), 2) << labels.join(u'|').toStdString();
    EXPECT_EQ(progressUnderQuestions, 0);
}

TEST_F(PublishSheet, PageWhosePictureHasGoneIsTold) {
    book.addPage(text("2.jpg"), 2, "second");
    open();
    ASSERT_TRUE(QFile::remove(book.pageSource->pages().back()->pageFilePath()));
    window().txtOutputFolder->setText(book.folder() + text("/new"));
    click(window().btnPublish);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.first().contains(text(": 2."))) << told.first().toStdString();
    EXPECT_EQ(questions.size(), 2);
}

TEST_F(PublishSheet, PublishesAnApplication) {
    open();
    window().mOutputType->button(OutputWindow::application)->click();
    click(window().btnPublish);
    EXPECT_TRUE(book.exists(text("mybook.app/Contents/Resources/index.html")));
    EXPECT_TRUE(opened.isEmpty()) << "the answer was no";
    EXPECT_EQ(ended, QList<int>{1});
    EXPECT_EQ(AppSettings().outputType(), OutputWindow::application);
}

TEST_F(PublishSheet, PublishesAWebBook) {
    installWebPlayer();
    open();
    window().mOutputType->button(OutputWindow::webBook)->click();
    click(window().btnPublish);
    EXPECT_TRUE(told.isEmpty()) << told.join(u' ').toStdString();
    EXPECT_EQ(book.read(text("files/page/1.jpg")), "first");
    EXPECT_EQ(book.read(text("files/web.js")), "web.js");
    EXPECT_TRUE(book.read(text("text.html")).contains("Tea &amp; cake"));
    EXPECT_FALSE(book.exists(text("book.swf")));
    EXPECT_EQ(AppSettings().outputType(), OutputWindow::webBook);
}

TEST_F(PublishSheet, OffersAWebBookInOneFileAndTheTextToEmbedIt) {
    installWebPlayer();
    AppSettings::shareInstance().setPageWidth(420);
    AppSettings::shareInstance().setPageHeight(595);
    open();
    EXPECT_FALSE(window().chkSingleFile->isVisible() || window().txtEmbed->isVisible());
    const int height = window().height();
    window().mOutputType->button(OutputWindow::webBook)->click();
    EXPECT_TRUE(window().chkSingleFile->isVisible() && window().btnCopyEmbed->isVisible());
    EXPECT_GT(window().height(), height);
    window().txtTitle->clear();
    QTest::keyClicks(window().txtTitle, text("\"Tea\" & <cake>"));
    click(window().btnCopyEmbed);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              text("<iframe src=\"BOOK-ADDRESS/mybook.html\" title=\"&quot;Tea&quot; &amp; "
                   "&lt;cake&gt;\" loading=\"lazy\" allowfullscreen style=\"width: 100%; "
                   "aspect-ratio: 840 / 595; border: 0\"></iframe>"));
    EXPECT_EQ(window().txtEmbed->selectedText(), QGuiApplication::clipboard()->text());
    QTest::keyClick(window().chkSingleFile, Qt::Key_Space);
    click(window().btnPublish);
    EXPECT_TRUE(told.isEmpty()) << told.join(u' ').toStdString();
    EXPECT_EQ(QDir(book.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{text("mybook.html")});
    EXPECT_TRUE(book.read(text("mybook.html")).contains(QByteArray("first").toBase64()));
}

TEST_F(PublishSheet, RemembersTheChoicesAlsoWhenPublishingFails) {
    open();
    window().txtOutputFolder->setText(text("/no/such/folder"));
    window().txtOutputName->setText(text("other"));
    window().txtTitle->setText(text("Other"));
    click(window().btnPublish);
    const AppSettings stored;
    EXPECT_EQ(stored.lastOutputFileFolder(), text("/no/such/folder"));
    EXPECT_EQ(stored.lastOutputFileName(), text("other"));
    EXPECT_EQ(stored.lastOutputFileTitle(), text("Other"));
    EXPECT_EQ(told.size(), 1);
    EXPECT_TRUE(questions.isEmpty());
    EXPECT_EQ(ended, QList<int>{1});
}

TEST_F(PublishSheet, AnExceptionIsLoggedAndEndsTheSheet) {
    open();
    auto throwing = OutputWindowDelegate::Questions{
        [](const QString&) { return std::optional<QString>(); },
        [](const QString&, const QString&) { return true; },
        [](const QString&, const QString&) -> bool {
            throw PlatformException(text("PanelError"), text("no panel"));
        },
        [](const QString&) {}, [](const QString&, const QString&) {}};
    sheet->setQuestions(throwing);
    const RecordedLog log(Log::Level::error);
    click(window().btnPublish);
    EXPECT_EQ(log.texts(), QStringList{text("publish error:no panel")});
    EXPECT_EQ(ended, QList<int>{1});
}

TEST_F(PublishSheet, AsksForTheFolderAndShowsIt) {
    open();
    folderAnswer = text("/some/where");
    click(window().btnSelectFolder);
    EXPECT_EQ(prompts, QStringList{text("Choose folder")});
    EXPECT_EQ(window().txtOutputFolder->text(), text("/some/where"));
    folderAnswer = std::nullopt;
    click(window().btnSelectFolder);
    EXPECT_EQ(window().txtOutputFolder->text(), text("/some/where"));
    click(window().btnOpenFolder);
    EXPECT_EQ(opened, QStringList{text("/some/where")});
}

TEST_F(PublishSheet, CancellingChangesNothing) {
    open();
    window().txtTitle->setText(text("Not kept"));
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_EQ(ended, QList<int>{0});
    EXPECT_EQ(AppSettings::shareInstance().lastOutputFileTitle(), text("Tea & cake"));
    EXPECT_FALSE(book.exists(text("files")));
}
