#include "builder/PDFBuilder.h"
#include "desktop/DesktopProgram.h"
#include "project/ProjectFile.h"
#include "support/OfficeStandIn.h"
#include "support/Program.h"
#include "ui/PagesWindowDelegate.h"

#include <csignal>

namespace {

class Projects : public DesktopProgram {
protected:
    void import(const QString& file) const {
        program->importFile(file);
        ASSERT_TRUE(waitForImport());
    }
    void trigger(QAction* MainMenu::*command) const { (window().menu->*command)->trigger(); }
    void open(const QString& file) {
        fileToOpen = file;
        trigger(&MainMenu::openProject);
        ASSERT_TRUE(waitForImport());
    }
    void saveAs(const QString& name) {
        fileToSave = path(name);
        trigger(&MainMenu::saveProjectAs);
    }
    std::size_t publishedPages() const { return configuration().at("Ppts").children.size(); }
    OutputWindow& publishSheet() const { return program->ouputWindow().window(); }
    // As an HTML book, without opening the result.
    void publish(const QString& title) const {
        program->ouputWindow().setQuestions(
            {[](const QString&) { return std::nullopt; },
             [](const QString&, const QString&) { return true; },
             [](const QString&, const QString&) { return false; }, [](const QString&) {},
             [](const QString&, const QString& cause) { ADD_FAILURE() << cause.toStdString(); }});
        trigger(&MainMenu::exportFlipBook);
        publishSheet().txtOutputFolder->setText(path("out"));
        publishSheet().txtTitle->setText(title);
        publishSheet().mOutputType->button(OutputWindow::htmlBook)->setChecked(true);
        QTest::mouseClick(publishSheet().btnPublish, Qt::LeftButton);
        ASSERT_TRUE(waitUntil([this] { return !publishSheet().isVisible(); }));
    }

    // Starts the program itself, with the folders of this test, and kills it after it has written
    // what it would lose.
    void loseWork(int signal) const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", path("config"));
        TestFiles::write(path("config/Folvero/Folvero.conf"), "[General]\nautosaveSeconds=1\n");
        QProcess other;
        other.setProcessEnvironment(environment);
        other.start(QCoreApplication::applicationFilePath(), {programOption, files.path(), pdf(2)});
        ASSERT_TRUE(waitUntil([] { return recoveryFiles().size() == 2; })) << "and its lock";
        ASSERT_EQ(::kill(pid_t(other.processId()), signal), 0);
        Program::finish(other);
    }
    static QStringList recoveryFiles() {
        return QDir(Folders::userApplicationSupport() + "/Folvero/recovery").entryList(QDir::Files);
    }
};

} // namespace

TEST_F(Projects, BookIsTakenUpAgainAsItWas) {
    launch();
    EXPECT_FALSE(window().isWindowModified());
    import(pdf(3));
    edit("pageMoveTime", "2.5");
    EXPECT_TRUE(window().isWindowModified());
    fileToSave = path("tea");
    trigger(&MainMenu::saveProject);
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_TRUE(window().windowTitle().startsWith("tea"));
    EXPECT_FALSE(ProjectFile::cover(path("tea.folvero")).isNull());

    publish("Tea & Cake");
    EXPECT_TRUE(window().isWindowModified()) << "what to publish belongs to the project";
    trigger(&MainMenu::saveProject);

    trigger(&MainMenu::newProject);
    EXPECT_EQ(publishedPages(), 12u);
    EXPECT_NE(value("pageMoveTime"), "2.5");
    EXPECT_TRUE(window().windowTitle().startsWith("Demo book"));
    trigger(&MainMenu::exportFlipBook);
    EXPECT_NE(publishSheet().txtTitle->text(), "Tea & Cake");
    QTest::mouseClick(publishSheet().btnCancel, Qt::LeftButton);
    EXPECT_FALSE(window().isWindowModified());

    open(path("tea.folvero"));
    EXPECT_EQ(publishedPages(), 3u);
    EXPECT_EQ(configuration().textAt("Properties/PageMoveTime"), "2.5");
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_TRUE(window().windowTitle().startsWith("tea"));
    trigger(&MainMenu::exportFlipBook);
    EXPECT_EQ(publishSheet().txtOutputFolder->text(), path("out"));
    EXPECT_EQ(publishSheet().txtTitle->text(), "Tea & Cake");
    EXPECT_TRUE(publishSheet().mOutputType->button(OutputWindow::htmlBook)->isChecked());
    QTest::mouseClick(publishSheet().btnCancel, Qt::LeftButton);
    EXPECT_TRUE(TestFiles::read(path("out/index.html")).contains("Tea &amp; Cake"));
}

TEST_F(Projects, PagesThatWereArrangedMakeTheBookAndComeBackWithTheProject) {
    launch();
    import(pdf(3));
    saveAs("tea.folvero");
    auto& pages = program->pagesWindow();
    trigger(&MainMenu::arrangePages);
    EXPECT_EQ(pages.model().rowCount(), 3);
    pages.model().remove({0});
    pages.model().rotate({1}, 90);
    QTest::mouseClick(pages.window().btnOK, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 2u);
    EXPECT_TRUE(window().isWindowModified());
    saveAs("tea.folvero");
    trigger(&MainMenu::newProject);
    open(path("tea.folvero"));
    EXPECT_EQ(publishedPages(), 2u);
    EXPECT_FALSE(window().isWindowModified());

    trigger(&MainMenu::arrangePages);
    ASSERT_EQ(pages.model().rowCount(), 2);
    EXPECT_EQ(pages.model().pages()[1].rotation, 90);
    ASSERT_TRUE(QFile::rename(path("3 pages.pdf"), path("moved.pdf")));
    pages.model().insertBlankPage(1);
    QTest::mouseClick(pages.window().btnOK, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    const ImportWindow& import = program->importWindow().window();
    EXPECT_TRUE(import.lblFailure->text().contains("3 pages.pdf"));
    QTest::mouseClick(import.btnCancel, Qt::LeftButton);
    EXPECT_EQ(publishedPages(), 2u) << "the book stays as it was";
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(Projects, DocumentsOfOfficeProgramsAreConvertedOnlyAfterTheyWereChanged) {
    const OfficeStandIn office;
    office.makes(pdf(3));
    for (const char* name : {"report.docx", "slides.odp"})
        TestFiles::write(path(name), "words");
    launch();
    import(path("report.docx"));
    EXPECT_EQ(office.runs(), 1);
    auto& pages = program->pagesWindow();
    const auto arrange = [&](const auto& change) {
        trigger(&MainMenu::arrangePages);
        change();
        ASSERT_TRUE(waitUntil([&] { return !pages.window().findChild<QProgressDialog*>(); }));
        QTest::mouseClick(pages.window().btnOK, Qt::LeftButton);
        ASSERT_TRUE(waitForImport());
    };
    arrange([&] {
        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(path("slides.odp"))});
        pages.model().dropMimeData(&dropped, Qt::CopyAction, 0, 0, {});
    });
    EXPECT_EQ(publishedPages(), 6u);
    EXPECT_EQ(office.runs(), 2) << "the sheet's pages are those of the book";
    arrange([&] { pages.model().remove({0}); });
    EXPECT_EQ(publishedPages(), 5u);
    EXPECT_EQ(office.runs(), 2);
    TestFiles::write(path("report.docx"), "other words");
    arrange([&] { pages.model().remove({0}); });
    EXPECT_EQ(office.runs(), 3);
}

TEST_F(Projects, DemoBookThatWasPublishedHasNothingToSave) {
    launch();
    publish("Demo");
    EXPECT_TRUE(QFile::exists(path("out/index.html")));
    EXPECT_FALSE(window().isWindowModified());
    edit("pageMoveTime", "2.5");
    saveAs("demo.folvero");
    EXPECT_EQ(ProjectFile::read(path("demo.folvero")).publish.title, "Demo");
    publish("Demo 2");
    EXPECT_TRUE(window().isWindowModified()) << "a project has changed";
}

TEST_F(Projects, ChangesAreNotLostUnasked) {
    launch();
    edit("pageMoveTime", "2.5");
    unsaved = Panels::Unsaved::cancel;
    window().close();
    EXPECT_TRUE(window().isVisible());
    trigger(&MainMenu::newProject);
    EXPECT_EQ(value("pageMoveTime"), "2.5");
    EXPECT_EQ(unsavedAsked.size(), 2);
    unsaved = Panels::Unsaved::save;
    window().close(); // no file is chosen
    EXPECT_TRUE(window().isVisible());
    window().menu->undo->trigger();
    EXPECT_FALSE(window().isWindowModified());
    window().menu->redo->trigger();
    fileToSave = path("tea");
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(ProjectFile::read(path("tea.folvero")).values.front().text, "2.5");
}

TEST_F(Projects, MovedProjectFindsItsDocumentAndSaysWhatIsWrong) {
    launch();
    import(pdf(3));
    QDir().mkpath(path("old"));
    saveAs("old/tea.folvero");
    ASSERT_TRUE(QFile::rename(path("3 pages.pdf"), path("old/3 pages.pdf")));
    open(path("old/tea.folvero"));
    EXPECT_EQ(publishedPages(), 3u);
    EXPECT_FALSE(window().messages->isVisible());
    ASSERT_TRUE(QFile::rename(pdf(2), path("2.pdf")) && QFile::remove(path("old/3 pages.pdf")) &&
                QFile::rename(path("2.pdf"), path("old/3 pages.pdf")));
    open(path("old/tea.folvero"));
    EXPECT_EQ(publishedPages(), 2u);
    EXPECT_TRUE(window().messages->message().contains("was changed after the project was saved"));
    ASSERT_TRUE(QFile::remove(path("old/3 pages.pdf")));
    open(path("old/tea.folvero"));
    EXPECT_TRUE(window().messages->message().contains("was not found"));
    EXPECT_EQ(publishedPages(), 2u) << "the window keeps what it shows";
    TestFiles::write(path("no.folvero"), "nothing");
    open(path("no.folvero"));
    EXPECT_TRUE(window().messages->message().contains("no.folvero: is no ZIP archive"));
    saveAs("missing folder/tea.folvero");
    EXPECT_TRUE(window().messages->message().contains("was not saved"));
}

TEST_F(Projects, HasThePagesOfSeveralDocuments) {
    Project project;
    project.documents = {{pdf(2), {}, -1, {}}, {pdf(3), {}, -1, {}}};
    project.pages = {{1, -1, 0}, {}, {0, 1, 90}};
    Message error;
    ASSERT_TRUE(ProjectFile::write(project, {}, path("joined.folvero"), &error));
    launch();
    program->openFile(path("joined.folvero"));
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(publishedPages(), 5u);
    EXPECT_EQ(program->importWindow().window().txtImportFile->text(), pdf(2));
    trigger(&MainMenu::saveProject);
    EXPECT_EQ(ProjectFile::read(path("joined.folvero")).pages.size(), 3u);
}

TEST_F(Projects, WorkOfAKilledProgramIsOfferedOnce) {
    for (const int signal : {SIGKILL, SIGTERM}) {
        loseWork(signal);
        recovers = true;
        launch();
        program->begin({});
        ASSERT_TRUE(waitForImport());
        EXPECT_EQ(publishedPages(), 2u);
        EXPECT_TRUE(window().isWindowModified());
        saveAs("tea.folvero");
        EXPECT_TRUE(recoveryFiles().isEmpty());
        program->begin({});
        EXPECT_EQ(recoveries.size(), 1);
        recoveries.clear();
        program = newProgram();
    }
    loseWork(SIGKILL);
    QFile::remove(path("2 pages.pdf"));
    recovers = true;
    launch();
    program->begin({});
    ASSERT_TRUE(waitForImport());
    QTest::mouseClick(program->importWindow().window().btnCancel, Qt::LeftButton);
    EXPECT_TRUE(window().isWindowModified()) << "although its document is gone";
    saveAs("tea.folvero");
    EXPECT_EQ(ProjectFile::read(path("tea.folvero")).documents.size(), 1u);
    recoveries.clear();
    program = newProgram();
    loseWork(SIGKILL);
    recovers = false;
    launch();
    program->begin({});
    EXPECT_EQ(recoveries.size(), 1);
    EXPECT_TRUE(recoveryFiles().isEmpty());
    EXPECT_EQ(publishedPages(), 12u);
}

TEST_F(Projects, RecentFilesShowTheirCovers) {
    launch();
    PDFBuilder red;
    red.addPage(PDFBuilder::page({300, 400}, "1 0 0 rg 0 0 300 400 re f"));
    ASSERT_TRUE(red.write(path("red.pdf")));
    import(path("red.pdf"));
    saveAs("tea.folvero");
    import(pdf(2));
    const auto colour = [this](int at) {
        const QAction* recent = window().menu->recentFiles->actions().at(at);
        const QImage icon = recent->icon().pixmap(40).toImage();
        return recent->text() + ' ' + icon.pixelColor(icon.rect().center()).name();
    };
    EXPECT_EQ(colour(0), "2 pages.pdf #ffffff");
    for (const int at : {1, 2})
        EXPECT_TRUE(colour(at).contains(" #fe") || colour(at).contains(" #ff0"))
            << colour(at).toStdString();
    window().menu->recentFiles->actions().at(1)->trigger();
    ASSERT_TRUE(waitForImport());
    EXPECT_TRUE(window().windowTitle().startsWith("tea"));
}
