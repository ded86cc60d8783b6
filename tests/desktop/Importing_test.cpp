#include "app/AppSettings.h"
#include "app/desktop/DropHint.h"
#include "app/desktop/RecentFiles.h"
#include "builder/PDFBuilder.h"
#include "desktop/DesktopProgram.h"
#include "support/ChildProcesses.h"
#include "support/Program.h"
#include "ui/PagesWindow.h"
#include "ui/PagesWindowDelegate.h"

namespace {

class Importing : public DesktopProgram {
protected:
    void SetUp() override { launch(); }

    ImportWindow& sheet() const { return program->importWindow().window(); }
    void startImport(const QString& file) const {
        window().menu->importPDF->trigger();
        sheet().txtImportFile->setText(file);
        QTest::mouseClick(sheet().btnOK, Qt::LeftButton);
    }
    void import(const QString& file) const {
        startImport(file);
        ASSERT_TRUE(waitForImport());
    }
    std::size_t publishedPages() const { return configuration().at("Ppts").children.size(); }
    void drop(const QStringList& paths, const QPoint& place = {10, 10}) const {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : paths)
            urls << (file.contains("://") ? QUrl(file) : QUrl::fromLocalFile(file));
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &enter);
        const auto* hint = window().findChild<DropHint*>();
        EXPECT_TRUE(enter.isAccepted() && hint->isVisible());
        QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &dropped);
        EXPECT_FALSE(hint->isVisible());
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(Importing, DocumentBecomesTheBook) {
    evaluate("window.isOld = true");
    import(pdf(5));
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_EQ(publishedPages(), 5u);
    EXPECT_EQ(value("pageWidth"), "300");
    EXPECT_EQ(value("pageHeight"), "400");
    EXPECT_TRUE(window().windowTitle().contains("5 pages"));
    EXPECT_FALSE(window().menu->undo->isEnabled());
    EXPECT_TRUE(waitForPreview("!window.isOld"));
    const QAction* recent = window().menu->recentFiles->actions().first();
    EXPECT_EQ(recent->data().toString(), QFileInfo(pdf(5)).absoluteFilePath());
    AppSettings::shareInstance().setPageWidth(420);
    program->OnApplyChange();
    EXPECT_EQ(configuration().textAt("Ppts/Ppt/Normal/Width"), "420") << "the stored size";
}

TEST_F(Importing, BookIsReadAsItsDocumentAsksUntilTheUserChooses) {
    const auto importAnother = [this](bool rightToLeft) {
        PDFBuilder hebrew;
        hebrew.addPage(PDFBuilder::page({300, 400}));
        hebrew.addCatalogEntries(rightToLeft ? "/ViewerPreferences << /Direction /R2L >>" : "");
        ASSERT_TRUE(hebrew.write(path("hebrew.pdf")));
        import(path("hebrew.pdf"));
    };
    for (const bool rightToLeft : {true, false, true}) {
        importAnother(rightToLeft);
        EXPECT_EQ(value("RightToLeft").toUpper(), rightToLeft ? "YES" : "NO");
    }
    EXPECT_EQ(configuration().textAt("Properties/RightToLeft"), "YES");
    press("RightToLeft");
    importAnother(true);
    EXPECT_EQ(value("RightToLeft"), "NO");
}

TEST_F(Importing, DroppedFilesMakeOneBookInTheOrderOfTheirNames) {
    TestFiles::write(path("note.txt"), "no PDF");
    drop({path("note.txt")});
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_TRUE(window().messages->message().contains("note.txt: is no PDF"));
    TestFiles::write(path("damaged.pdf"), "%PDF-1.7 no more");
    QDir().mkpath(path("pictures"));
    for (const char* name : {"pictures/page 10.png", "pictures/page 9.png"})
        ASSERT_TRUE(QImage(300, 400, QImage::Format_RGB32).save(path(name)));
    drop({path("pictures"), path("note.txt"), path("damaged.pdf"), pdf(3), pdf(2)});
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 7u);
    EXPECT_EQ(
        program->importWindow().sources().documents,
        QStringList({pdf(2), pdf(3), path("pictures/page 9.png"), path("pictures/page 10.png")}));
    for (const char* left : {"note.txt: is no PDF", "damaged.pdf: "})
        EXPECT_TRUE(window().messages->message().contains(left));
    EXPECT_TRUE(window().isWindowModified());
}

TEST_F(Importing, FilesDroppedOnTheRightAreAddedToTheBook) {
    const QPoint right(window().width() - 10, 10);
    drop({pdf(2)}, right);
    ASSERT_TRUE(waitForImport()) << "there was none";
    drop({pdf(3), path("gone.pdf")}, right);
    const PagesWindow& pages = program->pagesWindow().window();
    ASSERT_TRUE(pages.isVisible());
    EXPECT_TRUE(pages.lblFailure->text().contains("gone.pdf: no such file"));
    QTest::mouseClick(pages.btnOK, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 5u);
}

TEST_F(Importing, PagesThatWerePutTogetherAreNotReplacedUnasked) {
    drop({pdf(2), pdf(3)});
    ASSERT_TRUE(waitForImport());
    unsaved = Panels::Unsaved::cancel;
    drop({path("gone.pdf"), "https://example.org/tea.pdf"});
    EXPECT_TRUE(unsavedAsked.isEmpty()) << "nothing would take their place";
    for (const char* cause : {"gone.pdf: no such file", "tea.pdf: is not on this computer"})
        EXPECT_TRUE(window().messages->message().contains(cause));
    window().menu->importPDF->trigger();
    EXPECT_FALSE(sheet().isVisible());
    drop({pdf(1)});
    EXPECT_EQ(unsavedAsked.size(), 2);
    EXPECT_EQ(publishedPages(), 5u);
    fileToSave = path("tea");
    window().menu->saveProject->trigger();
    drop({pdf(1)});
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(unsavedAsked.size(), 2) << "the project has them";
    EXPECT_EQ(publishedPages(), 1u);
}

TEST_F(Importing, DroppedProjectIsOpened) {
    import(pdf(3));
    fileToSave = path("tea");
    window().menu->saveProject->trigger();
    window().menu->newProject->trigger();
    drop({path("tea.folvero")});
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 3u);
    EXPECT_TRUE(window().windowTitle().startsWith("tea"));
}

TEST_F(Importing, PageThatCouldNotBeDrawnIsNamedAboveTheBook) {
    import(Program::sample("damaged-page.pdf"));
    EXPECT_FALSE(sheet().isVisible());
    EXPECT_TRUE(
        window().messages->message().endsWith("\nPage 3 could not be drawn: malformed page tree"));
    import(pdf(2));
    EXPECT_FALSE(window().messages->isVisible());
    PDFBuilder torn;
    for (int page = 0; page < 7; ++page) {
        const int missing = torn.addMissingPage();
        torn.setObject(torn.pageObject(missing), "<< /Type /Pages /Count 1 /Kids [] >>");
    }
    torn.addPage(PDFBuilder::page({300, 400}, "/Gone Do"));
    ASSERT_TRUE(torn.write(path("torn.pdf")));
    import(path("torn.pdf"));
    const QString message = window().messages->message();
    EXPECT_TRUE(message.contains("\nPage 5 could") && message.contains("\n2 more page") &&
                message.contains("\nPage 8 could not be drawn completely: an image"))
        << message.toStdString();
}

TEST_F(Importing, IsCancelledOrEndsWithTheProgramWhileThePreviewLives) {
    startImport(Program::sample("thousand.pdf"));
    EXPECT_TRUE(program->importWindow().isImporting());
    EXPECT_TRUE(waitForPreview()) << "the preview answers during an import";
    QTest::mouseClick(sheet().btnCancel, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 12u);
    import(pdf(2));
    EXPECT_EQ(publishedPages(), 2u);
    startImport(Program::sample("thousand.pdf"));
    const QString folder = program->flashPreviewFolder();
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(Importing, ProgramThatIsTerminatedDuringAnImportRemovesItsPreview) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", path("data"));
    environment.insert("XDG_CONFIG_HOME", path("config"));
    const QString preview = path("data/Folvero/preview");
    QProcess other;
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(),
                {programOption, files.path(), Program::sample("thousand.pdf")});
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !ChildProcesses::running("draw", other.processId()).empty(); }, 20000));
    ASSERT_TRUE(QFileInfo::exists(preview + "/index.html"));
    other.terminate();
    EXPECT_EQ(Program::finish(other).exitCode, 0);
    EXPECT_FALSE(QFileInfo::exists(preview));
    EXPECT_TRUE(TestFiles::read(path("data/Tessamar/Folvero/Folvero.log")).contains("version is:"));
}

TEST_F(Importing, RecentDocumentsAreListedUntilTheyAreCleared) {
    for (int pages = 1; pages <= 9; ++pages)
        RecentFiles::add(pdf(pages), {});
    RecentFiles::add(pdf(3), {});
    ASSERT_TRUE(QFile::remove(path("8 pages.pdf")));
    import(pdf(2));
    auto& menu = *window().menu->recentFiles;
    QStringList names;
    for (const QAction* action : menu.actions())
        names << action->text();
    EXPECT_EQ(names,
              QStringList({"2 pages.pdf", "3 pages.pdf", "9 pages.pdf", "7 pages.pdf",
                           "6 pages.pdf", "5 pages.pdf", "4 pages.pdf", "", "&Clear the list"}));
    menu.actions().at(1)->trigger();
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 3u);
    menu.actions().last()->trigger();
    EXPECT_FALSE(menu.isEnabled());
    EXPECT_TRUE(RecentFiles::list().isEmpty());
}

TEST_F(Importing, PagesOfTheEarlierBookAreRemovedWithIt) {
    import(pdf(1));
    window().menu->exportFlipBook->trigger();
    program->ouputWindow().onCancel();
    const std::weak_ptr<FlashPageSource> earlier = program->flashPageSource();
    import(pdf(2));
    EXPECT_TRUE(earlier.expired());
}

TEST_F(Importing, BookIsPublishedFromTheSheet) {
    import(pdf(3));
    auto& publish = program->ouputWindow();
    publish.setQuestions(
        {[](const QString&) { return std::nullopt; },
         [](const QString&, const QString&) { return false; },
         [](const QString&, const QString&) { return true; },
         [this](const QString& path) { opened << path; },
         [](const QString&, const QString& cause) { ADD_FAILURE() << cause.toStdString(); }});
    window().menu->exportFlipBook->trigger();
    publish.window().txtOutputFolder->setText(path("out"));
    publish.window().txtOutputName->setText("tea");
    QTest::mouseClick(publish.window().btnPublish, Qt::LeftButton);
    EXPECT_EQ(opened, QStringList{path("out/tea.html")});
    EXPECT_EQ(BookReader::configuration(path("out")).at("Ppts").children.size(), 3u);
    EXPECT_TRUE(QFileInfo::exists(path("out/files/web/book.js"))) << "nobody chose another kind";
    import(pdf(2));
    window().menu->exportFlipBook->trigger();
    EXPECT_EQ(QFileInfo(publish.window().txtOutputFolder->text()).fileName(), "2 pages");
}
