#include "app/AppSettings.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewView.h"
#include "desktop/DesktopProgram.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"
#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"

#include <QButtonGroup>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QUrl>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

class Importing : public DesktopProgram {
protected:
    void SetUp() override { launch(); }

    ImportWindow& sheet() const { return program->importWindow().window(); }
    void startImport(const QString& file) const {
        window().menu->importPDF->trigger();
        sheet().txtImportFile->setText(file);
        QTest::mouseClick(sheet().btnOK, Qt::LeftButton);
    }
    std::size_t publishedPages() const { return configuration().at(text("Ppts")).children.size(); }
    void drop(const QString& file) const {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent dropped({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &dropped);
        QTest::qWait(0);
    }
};

} // namespace

TEST_F(Importing, DocumentBecomesTheBook) {
    evaluate(text("window.isOld = true"));
    startImport(pdf(5));
    ASSERT_TRUE(waitForImport());
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_EQ(publishedPages(), 5u);
    EXPECT_EQ(value(text("pageWidth")), text("300"));
    EXPECT_EQ(value(text("pageHeight")), text("400"));
    EXPECT_TRUE(window().windowTitle().contains(text("5 pages")));
    EXPECT_FALSE(window().menu->undo->isEnabled());
    EXPECT_TRUE(waitForPreview(text("!window.isOld")));
    const QAction* recent = window().menu->recentFiles->actions().first();
    EXPECT_EQ(recent->data().toString(), QFileInfo(pdf(5)).absoluteFilePath());
}

TEST_F(Importing, DroppedDocumentIsImportedAtOnce) {
    TestFiles::write(path(text("note.txt")), "no PDF");
    drop(path(text("note.txt")));
    EXPECT_FALSE(sheet().isVisible());
    drop(pdf(3));
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 3u);
}

TEST_F(Importing, FailureIsToldAndTheBookStays) {
    TestFiles::write(path(text("broken.pdf")), "no PDF at all");
    startImport(path(text("broken.pdf")));
    ASSERT_TRUE(waitForImport());
    EXPECT_TRUE(sheet().isVisible());
    EXPECT_TRUE(sheet().lblFailure->text().contains(text("broken.pdf")))
        << sheet().lblFailure->text().toStdString();
    EXPECT_EQ(publishedPages(), 12u);
    sheet().txtImportFile->setText(pdf(2));
    QTest::mouseClick(sheet().btnOK, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 2u);
}

TEST_F(Importing, PageThatCouldNotBeDrawnIsToldAboveTheBook) {
    startImport(Program::sample(text("damaged-page.pdf")));
    ASSERT_TRUE(waitForImport());
    EXPECT_FALSE(sheet().isVisible());
    ASSERT_TRUE(window().messages->isVisible());
    EXPECT_TRUE(window().messages->message().contains(text("Page 3 could not be drawn")))
        << window().messages->message().toStdString();
    startImport(pdf(2));
    ASSERT_TRUE(waitForImport());
    EXPECT_FALSE(window().messages->isVisible());
}

TEST_F(Importing, CanBeCancelledAndStartedAgainWhileThePreviewLives) {
    startImport(Program::sample(text("thousand.pdf")));
    EXPECT_TRUE(program->importWindow().isImporting());
    EXPECT_TRUE(waitForPreview()) << "the preview answers during an import";
    QTest::mouseClick(sheet().btnCancel, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 12u);
    sheet().txtImportFile->setText(pdf(2));
    QTest::mouseClick(sheet().btnOK, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 2u);
}

TEST_F(Importing, ProgramThatEndsDuringAnImportLeavesNothingBehind) {
    startImport(Program::sample(text("thousand.pdf")));
    const QString folder = program->flashPreviewFolder();
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(Importing, ProgramThatIsToldToStopDuringAnImportEndsInGoodOrder) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("XDG_DATA_HOME"), path(text("data")));
    environment.insert(text("XDG_CONFIG_HOME"), path(text("config")));
    const QString preview = path(text("data/Folvero/preview"));
    QProcess other;
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(),
                {text(programOption), files.path(), Program::sample(text("thousand.pdf"))});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QFileInfo::exists(preview + text("/index.html")); }, 20000));
    // The import begins as soon as the demo book is there, and takes far longer than this.
    QTest::qWait(500);
    other.terminate();
    EXPECT_EQ(Program::finish(other).exitCode, 0);
    EXPECT_FALSE(QFileInfo::exists(preview));
}

TEST_F(Importing, BookIsPublishedFromTheSheetInBothForms) {
    startImport(pdf(3));
    ASSERT_TRUE(waitForImport());
    auto& publish = program->ouputWindow();
    publish.setQuestions(
        {[](const QString&) { return std::optional<QString>(); },
         [](const QString&, const QString&) { return false; },
         [](const QString&, const QString&) { return true; },
         [this](const QString& path) { opened << path; },
         [](const QString&, const QString& cause) { ADD_FAILURE() << cause.toStdString(); }});
    for (const auto type : {OutputWindow::htmlBook, OutputWindow::application}) {
        window().menu->exportFlipBook->trigger();
        publish.window().txtOutputFolder->setText(path(text("out")));
        publish.window().txtOutputName->setText(text("tea"));
        publish.window().mOutputType->button(type)->click();
        QTest::mouseClick(publish.window().btnPublish, Qt::LeftButton);
    }
    EXPECT_EQ(opened, (QStringList{path(text("out/tea.html")), path(text("out/tea.app"))}));
    const QString inside = path(text("out/tea.app/Contents/Resources"));
    for (const QString& book : {path(text("out")), inside})
        EXPECT_EQ(BookReader::configuration(book).at(text("Ppts")).children.size(), 3u);
    startImport(pdf(2));
    ASSERT_TRUE(waitForImport());
    window().menu->exportFlipBook->trigger();
    EXPECT_EQ(QFileInfo(publish.window().txtOutputFolder->text()).fileName(), text("2 pages"));
}
