// Start and end of the desktop program.

#include "app/AppSettings.h"
#include "app/desktop/Appearance.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewView.h"
#include "app/desktop/RecentFiles.h"
#include "app/desktop/ResultBar.h"
#include "app/desktop/SettingsReset.h"
#include "app/desktop/StartPanel.h"
#include "app/desktop/StyleSaver.h"
#include "app/desktop/WindowFitter.h"
#include "base/Log.h"
#include "pages/FlashPageSourceImg.h"
#include "system/Bundle.h"
#include "ui/FlashTemplateModel.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"
#include "ui/PagesWindowDelegate.h"
#include "ui/PropertyCellDelegate.h"
#include "ui/SelectTemplateWindowDelegate.h"
#include "ui/SettingsSearch.h"

#include <QActionGroup>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr Log launchLog("BrisleafAppDelegate");

constexpr int indentationPerLevel = 8;

} // namespace

BrisleafAppDelegate::BrisleafAppDelegate()
    : iQuestions{Panels::chooseFile,   Panels::chooseFileToSave,
                 Panels::askToReplace, Panels::chooseColor,
                 Panels::open,         Panels::about,
                 Panels::askToSave,    Panels::askToRecover},
      iHistory({[this] { valuesWereUndone(); }, [this] { templateWasLoaded(); },
                [this] { templateWasUndone(); }}) {}

BrisleafAppDelegate::~BrisleafAppDelegate() {
    applicationWillTerminate();
}

void BrisleafAppDelegate::applicationDidFinishLaunching() {
    prepaireTheLog();
    iAppearance = std::make_unique<Appearance>();
    chooseFirstKind();
    makeWindows();
    launchLog.info(QStringLiteral("version is:%1").arg(Bundle::version()));
    iWindow->show();
    iWindow->activateWindow();
    iFlashPreviewFolder = QStringLiteral("");
    new WindowFitter(*iWindow);
    // Not the first button: a stray key must not trigger anything.
    iWindow->outlineView->setFocus();
    loadDemoPages();
    iFlashTmpl = std::make_shared<FlashTemplate>();
    showEditor();
    observeEditor();
    applyChange(OtherBook);
}

// Until a book has been published its kind is nobody's choice, even where an import has stored it.
void BrisleafAppDelegate::chooseFirstKind() {
    auto& settings = AppSettings::shareInstance();
    if (settings.outputType() == OutputWindow::htmlBook &&
        settings.lastOutputFileFolder().isEmpty())
        settings.setOutputType(OutputWindow::webBook);
}

// The window stays hidden until it is complete.
void BrisleafAppDelegate::makeWindows() {
    iWindow = std::make_unique<MainWindow>(iHistory.stack());
    iWindow->hide();
    iImportWindow = std::make_unique<ImportWindowDelegate>(iWindow.get());
    iImportWindow->setFilePanel(iQuestions.fileToOpen);
    iImportWindow->setFileOpener(iQuestions.open);
    iPagesWindow = std::make_unique<PagesWindowDelegate>(iWindow.get());
    iOuputWindow = std::make_unique<OutputWindowDelegate>(iWindow.get());
    iSelecteTmplWindow = std::make_unique<SelectTemplateWindowDelegate>(iWindow.get());
    iJobs.watch(iImportWindow->job());
    iJobs.watch(iOuputWindow->job());
    iWindow->menu->showRecentFiles(RecentFiles::list());
    makeProject();
    makeStyleSaver();
    connectCommands();
}

void BrisleafAppDelegate::loadDemoPages() {
    auto pages = std::make_shared<FlashPageSourceImg>();
    const auto files =
        Bundle::pathsForResourcesOfType(QStringLiteral("jpg"), QStringLiteral("DemoImgs"));
    for (const QString& file : files)
        pages->addImgPageFromFile(file);
    pages->generateNormalPages();
    iBook.pageSource = pages;
}

void BrisleafAppDelegate::showEditor() {
    tmplDelegate = std::make_unique<FlashTemplateOutlineDelegate>();
    tmplDelegate->setFlashTmpl(iFlashTmpl);
    tmplDelegate->setFilePanel(iQuestions.fileToOpen);
    tmplDelegate->setColorPanel(iQuestions.color);
    tmplDelegate->setTrial([this](FlashTemplateProperty& property, const QString& value) {
        valueIsTried(property, value);
    });
    iOutline = std::make_unique<FlashTemplateModel>(*tmplDelegate);
    iOutline->setDefaults(&iDefaults);
    auto* view = iWindow->outlineView;
    view->setItemDelegate(new PropertyCellDelegate(*view));
    view->setModel(iOutline.get());
    iWindow->search->follow(*iOutline);
    view->setIndentation(indentationPerLevel);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { tmplDelegate->outlineViewSelectionDidChange(); });
    takeSizeOfDocument();
    iReset = std::make_unique<SettingsReset>(*view, *iOutline, iHistory, *iWindow->menu);
    templateWasLoaded();
    iHistory.reset(iFlashTmpl);
    showTemplate();
}

void BrisleafAppDelegate::observeEditor() {
    auto& center = NotificationCenter::defaultCenter();
    iTips = center.addObserver(QString::fromUtf16(UpdateFlashTmplProTipNotification), nullptr,
                               [this](const Notification&) { updateTmplPropertyTip(); });
    iChanges = center.addObserver(
        QString::fromUtf16(FlashTmplProValueChangedNotification), nullptr,
        [this](const Notification& change) {
            valueWasEdited(*static_cast<const FlashTemplateProperty*>(change.object));
        });
}

void BrisleafAppDelegate::connectCommands() {
    const auto command = [this](const QAction* action, auto run) {
        connect(action, &QAction::triggered, this, run);
    };
    const MainMenu& menu = *iWindow->menu;
    command(menu.importPDF, &BrisleafAppDelegate::OnImportPDF);
    command(menu.exportFlipBook, &BrisleafAppDelegate::OnExportFlipBook);
    command(menu.exportSettings, &BrisleafAppDelegate::OnExportTmplSettings);
    command(menu.importSettings, &BrisleafAppDelegate::OnImportTmplSettings);
    command(menu.toolBarItemApplyChange, &BrisleafAppDelegate::OnApplyChange);
    command(menu.selectTemplate, &BrisleafAppDelegate::onSelectTemplate);
    command(menu.openHelp, &BrisleafAppDelegate::OnOpenHelp);
    command(menu.about, [this] { iQuestions.about(); });
    command(menu.reloadPreview, [this] { iWindow->webView->reloadBook(); });
    command(menu.quit, [this] { iWindow->close(); });
    connect(&menu, &MainMenu::recentFileChosen, this, &BrisleafAppDelegate::openFile);
    connect(&menu, &MainMenu::recentFilesCleared, this, [this] {
        RecentFiles::clear();
        iWindow->menu->showRecentFiles({});
        iWindow->start->showRecentFiles();
    });
    for (QAction* action : menu.appearance->actions()) {
        const auto choice = Appearance::Choice(action->data().toInt());
        action->setChecked(choice == iAppearance->choice());
        command(action, [this, choice] { iAppearance->setChoice(choice); });
    }
    connect(iWindow->btnFloat, &QPushButton::clicked, this, &BrisleafAppDelegate::onSelectTemplate);
    connect(iWindow->start, &StartPanel::fileChosen, this, &BrisleafAppDelegate::openFile);
    connect(iWindow->start->btnChoose, &QPushButton::clicked, this, [this] {
        if (const auto file = iQuestions.fileToOpen({}, {QStringLiteral("pdf")}))
            openFile(*file);
    });
    connect(iWindow.get(), &MainWindow::filesDropped, this, &BrisleafAppDelegate::openFiles);
    connect(iWindow.get(), &MainWindow::filesAdded, this, &BrisleafAppDelegate::addFiles);
    connect(iOuputWindow.get(), &OutputWindowDelegate::publishFailed, this,
            [this](const QString& cause) {
                iWindow->messages->showError(tr("The book was not published."), cause);
            });
    connect(iOuputWindow.get(), &OutputWindowDelegate::bookPublished, iWindow->result,
            &ResultBar::showResult);
    // Both would leave the preview little room in a small window.
    connect(iOuputWindow.get(), &OutputWindowDelegate::bookPublished, iWindow->start,
            &QWidget::hide);
    connect(iWindow->result, &ResultBar::openRequested, this,
            [this](const QString& path) { iQuestions.open(path); });
    connect(iWindow->result, &ResultBar::publishRequested, this, [this] {
        OnExportFlipBook();
        iOuputWindow->onPublish();
    });
    connect(iWindow->webView, &PreviewView::rendererCrashed, this,
            &BrisleafAppDelegate::previewCrashed);
}

void BrisleafAppDelegate::applicationWillTerminate() {
    iImportWindow.reset();
    iFlashTmpl.reset();
    iBook = {};
    iProject.reset();
    removeFlashPreviewFolder();
}
