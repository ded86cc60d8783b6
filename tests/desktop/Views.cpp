#include "desktop/Views.h"

#include "app/desktop/DropHint.h"
#include "app/desktop/ProjectSession.h"
#include "app/desktop/RecentFiles.h"
#include "app/desktop/ResultBar.h"
#include "app/desktop/StyleSaver.h"
#include "app/desktop/Translations.h"
#include "pages/ImportPDFOperation.h"
#include "support/Program.h"
#include "template/StyleFolders.h"
#include "ui/NameWindow.h"
#include "ui/PagesWindow.h"
#include "ui/PagesWindowDelegate.h"
#include "ui/PasswordWindow.h"
#include "ui/PublishProgress.h"
#include "ui/SettingsSearch.h"

using namespace std::chrono_literals;

namespace {

constexpr QSize smallWindow(1024, 700);

void removeTranslations() {
    qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
}

void click(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

Views::~Views() {
    program.reset();
    removeTranslations();
}

void Views::visit(How how, const Look& look) {
    iHow = std::move(how);
    iLook = look;
    program.reset();
    removeTranslations();
    Translations::install({iHow.language});
    QDir(StyleFolders::own()).removeRecursively();
    RecentFiles::clear();
    for (const int pages : {1, 2, 3})
        RecentFiles::add(pdf(pages), {});
    // With the questions that users get.
    program = std::make_unique<BrisleafAppDelegate>();
    launch();
    window().resize(smallWindow);
    window().menu->appearance->actions().at(iHow.appearance)->trigger();
    for (const auto show :
         {&Views::showStart, &Views::showImport, &Views::showBook, &Views::showSettings,
          &Views::showPages, &Views::showStyles, &Views::showChooser, &Views::showPublish,
          &Views::showQuestions, &Views::showPanels, &Views::showMenus})
        (this->*show)();
}

// Labels that wrap get their height only when the window has its own.
void Views::look(const std::string& name, QWidget& view) const {
    QTest::qWait(40);
    EXPECT_TRUE(view.isVisible()) << name;
    const std::string whole = iHow.name + ' ' + name;
    if (const QString folder = qEnvironmentVariable("FOLVERO_WRITE_VIEWS"); !folder.isEmpty()) {
        const QString file = QString::fromStdString(whole + ".png").replace(u' ', u'-');
        EXPECT_TRUE(view.grab().save(QDir(folder).filePath(file)));
    }
    iLook(whole, view);
}

void Views::lookInto(const std::string& name, const std::function<void()>& open) const {
    const QPointer<QWidget> before = QApplication::activeModalWidget();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* shown = QApplication::activePopupWidget();
        if (!shown)
            shown = QApplication::activeModalWidget();
        if (!shown || shown == before || shown->inherits("PublishProgress"))
            return;
        watch.stop();
        look(name, *shown);
        shown->close();
    });
    watch.start(20ms);
    open();
    EXPECT_TRUE(waitUntil([&] { return !watch.isActive(); })) << name;
}

void Views::import(const QString& file) const {
    evaluate("window.isOld = true");
    program->importFile(file);
    ASSERT_TRUE(waitForImport() && waitForPreview("!window.isOld"));
}

void Views::showStart() {
    look("start", window());
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(pdf(1)), QUrl::fromLocalFile(pdf(2))});
    auto* hint = window().findChild<DropHint*>();
    hint->showFor(dragged, {});
    look("dragging", *hint);
    hint->showFor(dragged, "tea");
    look("dragging over a book", *hint);
    hint->hide();
}

void Views::showImport() {
    auto& sheet = program->importWindow().window();
    window().menu->importPDF->trigger();
    sheet.txtImportFile->clear();
    look("import", sheet);
    for (auto* list : {sheet.spreads, sheet.importQuality}) {
        list->showPopup();
        look(list == sheet.spreads ? "double pages" : "quality", *list->view()->window());
        list->hidePopup();
    }
    TestFiles::write(path("broken.pdf"), "no PDF at all");
    sheet.txtImportFile->setText(path("broken.pdf"));
    click(sheet.btnOK);
    ASSERT_TRUE(waitForImport());
    look("import failed", sheet);
    showImportAtWork();
    showPasswords();
    program->importWindow().onCancelAction();
    ASSERT_FALSE(sheet.isVisible());
}

// No import is as slow as that on any machine.
void Views::showImportAtWork() {
    auto& sheet = program->importWindow().window();
    program->importWindow().enableButtons(false);
    sheet.lblInfo->setText(ImportWindowDelegate::tr("Importing:%1/%2").arg(41).arg(1000));
    sheet.lblTimeLeft->setText(JobProgress::textFor(0.041, 40s));
    look("importing", sheet);
    program->importWindow().enableButtons(true);
}

void Views::showPasswords() {
    auto& import = program->importWindow();
    PasswordWindow& question = import.passwordWindow();
    import.importFiles({Program::sample("encrypted.pdf")});
    const auto isAsked = [&question] { return question.isVisible(); };
    ASSERT_TRUE(waitUntil(isAsked));
    look("password", question);
    question.txtPassword->setText("wrong");
    click(question.btnOK);
    ASSERT_TRUE(waitUntil(isAsked));
    look("wrong password", question);
    click(question.btnCancel);
    ASSERT_TRUE(waitForImport());
}

void Views::showBook() {
    import(Program::sample("damaged-page.pdf"));
    look("message", window());
    import(Program::sample("outline.pdf"));
    look("book", window());
}

void Views::showSettings() {
    edit("topMargin", "40");
    for (const QString key : {"topMargin", "mainbgImgPosition", "RightToLeft"}) {
        valueOf(key);
        look("setting " + key.toStdString(), window());
    }
    auto& settings = *window().outlineView;
    lookInto("reset", [&] {
        Q_EMIT settings.customContextMenuRequested(
            settings.visualRect(valueOf("topMargin")).center());
    });
    showEditors();
    QLineEdit* field = window().search->field();
    for (const char* words : {"a", "qqqq"}) {
        field->setText(words);
        look(*words == 'a' ? "found settings" : "no setting found", window());
    }
    field->clear();
}

void Views::showEditors() {
    auto& settings = *window().outlineView;
    settings.edit(valueOf("topMargin"));
    auto* number = settings.findChild<QLineEdit*>();
    ASSERT_TRUE(number);
    number->setText("x");
    QTest::keyClick(number, Qt::Key_Return);
    look("wrong value", window());
    QTest::keyClick(number, Qt::Key_Escape);
    settings.edit(valueOf("mainbgImgPosition"));
    auto* list = settings.findChild<QComboBox*>();
    ASSERT_TRUE(list);
    list->showPopup();
    look("choices of a setting", *list->view()->window());
    list->hidePopup();
    settings.setFocus();
}

void Views::showPages() {
    auto& pages = program->pagesWindow();
    window().menu->arrangePages->trigger();
    look("pages", pages.window());
    pages.window().pages->selectAll();
    TestFiles::write(path("broken.pdf"), "no PDF at all");
    Q_EMIT pages.model().filesWereDropped({path("broken.pdf")}, 0);
    look("pages that are no PDF", pages.window());
    click(pages.window().btnCancel);
}

void Views::showStyles() {
    NameWindow& name = program->styleSaver().nameWindow();
    window().menu->saveStyle->trigger();
    look("name of a style", name);
    name.txtName->setText("Garden");
    click(name.btnOK);
    look("name that is taken", name);
    name.txtName->setText("Mine");
    click(name.btnOK);
    ASSERT_FALSE(name.isVisible());
    window().menu->saveStyle->trigger();
    lookInto("style that would be replaced", [&] { click(name.btnOK); });
    click(name.btnCancel);
}

void Views::showChooser() {
    TestFiles::write(StyleFolders::ownFor("float", "Torn") + "/tmplSetting.txt", "no settings");
    auto& chooser = program->selecteTmplWindow();
    auto* styles = chooser.window().iImgBrowserView;
    const auto select = [styles](const QString& name) {
        const auto found = styles->model()->match(styles->model()->index(0, 0), Qt::DisplayRole,
                                                  name, 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        styles->setCurrentIndex(found.front());
    };
    program->onSelectTemplate();
    look("templates", chooser.window());
    select("Torn");
    look("style that cannot be used", chooser.window());
    select("Mine");
    click(chooser.window().btnRename);
    look("other name of a style", chooser.nameWindow());
    click(chooser.nameWindow().btnCancel);
    lookInto("style that would be deleted", [&] { click(chooser.window().btnDelete); });
    chooser.onCancel();
}

void Views::showPublish() {
    auto& sheet = program->ouputWindow().window();
    program->OnExportFlipBook();
    showKindsOfBooks();
    JobProgress job;
    job.begin();
    {
        PublishProgress progress(&sheet, job, PublishProgress::atOnce);
        progress.showPages(41, 1000);
        look("making pages", progress);
        progress.showFiles(0.5);
        look("writing the book", progress);
    }
    TestFiles::write(path("full/index.html"), "somebody's page");
    sheet.txtOutputFolder->setText(path("full"));
    sheet.txtOutputName->setText("index");
    lookInto("files that would be replaced", [&] { click(sheet.btnPublish); });
    showPublished();
}

void Views::showKindsOfBooks() {
    auto& sheet = program->ouputWindow().window();
    for (const int kind : {OutputWindow::htmlBook, OutputWindow::application,
                           OutputWindow::webBookInOneFile, OutputWindow::webBook}) {
        sheet.mOutputType->button(kind)->click();
        look("publish kind " + std::to_string(kind), sheet);
    }
    sheet.btnMore->setChecked(true);
    look("more options", sheet);
    for (QLineEdit* field : {sheet.txtOutputFolder, sheet.txtOutputName, sheet.txtTitle})
        field->clear();
    look("empty fields", sheet);
    sheet.txtOutputFolder->setText(path("out"));
    sheet.txtOutputName->setText("tea");
    sheet.txtTitle->setText("Tea");
    for (QLineEdit* field : {sheet.txtAddress, sheet.txtSample}) {
        field->setText("?");
        click(sheet.btnPublish);
        look(field == sheet.txtAddress ? "wrong address" : "wrong sample", sheet);
        field->clear();
    }
}

void Views::showPublished() {
    auto& sheet = program->ouputWindow().window();
    sheet.txtOutputFolder->setText(path("out of %1").arg(QString::fromStdString(iHow.name)));
    sheet.txtAddress->setText("https://example.org/tea/");
    lookInto("published book", [&] { click(sheet.btnPublish); });
    ASSERT_TRUE(waitUntil([this] { return window().result->isVisible(); }));
    look("result", window());
    click(window().result->btnCopyLink);
    look("copied link", window());
}

void Views::showQuestions() {
    lookInto("changes to be saved", [this] { window().menu->newProject->trigger(); });
    lookInto("about", [this] { window().menu->about->trigger(); });
    lookInto("changes to be recovered", [] {
        Panels::askToRecover(
            ProjectSession::tr("Recover the changes to “%1”?").arg("Tea"),
            ProjectSession::tr("Folvero ended before they were saved, last on %1.").arg("1/2/26"));
    });
    lookInto("text of the book", [] {
        Panels::askForText(OutputWindowDelegate::tr("Include the document's text?"),
                           OutputWindowDelegate::tr(
                               "The document forbids copying its text. Without text the book can't "
                               "be searched, and its words can't be selected or read aloud."));
    });
    lookInto("failed publish", [] {
        Panels::showMessage(OutputWindowDelegate::tr("The book was not published"),
                            OutputWindowDelegate::tr("Choose another folder, or make room in this "
                                                     "one, and publish again: what you have typed "
                                                     "is kept."));
    });
}

void Views::showPanels() {
    lookInto("colour", [] { Panels::chooseColor(Qt::red); });
    lookInto("file", [this] { Panels::chooseFile(pdf(1), {"pdf"}); });
    lookInto("picture", [this] { Panels::chooseFile(path("no.jpg"), {"jpg"}); });
    lookInto("file to save", [this] { Panels::chooseFileToSave(path("a.txt"), {"txt"}); });
    lookInto("folder", [] { Panels::chooseFolder(OutputWindowDelegate::tr("Choose folder")); });
    QToolTip::showText({}, window().btnFloat->toolTip(), &window());
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->inherits("QTipLabel"))
            look("tool tip", *each);
    }
    QToolTip::hideText();
}

void Views::showMenus() {
    int number = 0;
    for (auto* menu : window().menuBar()->findChildren<QMenu*>()) {
        if (menu->isEmpty() || menu->title().isEmpty())
            continue;
        lookInto("menu " + std::to_string(++number), [menu] {
            menu->popup({});
            menu->setActiveAction(menu->actions().first());
        });
    }
    EXPECT_EQ(number, 6);
}
