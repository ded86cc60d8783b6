#include "app/desktop/MainMenu.h"

#include "app/desktop/Appearance.h"
#include "app/desktop/RecentCovers.h"
#include "ui/Icons.h"
#include "ui/PlainText.h"

#include <QActionGroup>
#include <QEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QToolBar>
#include <QUndoStack>

namespace {

// Escapes ampersands, which would mark a mnemonic.
QString withoutMnemonic(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

// Shows icons of a menu in the size of covers.
class CoverStyle : public QProxyStyle {
public:
    explicit CoverStyle(QObject* parent) { setParent(parent); }
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_SmallIconSize ? RecentCovers::side
                                          : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

MainMenu::MainMenu(QMainWindow& window, QUndoStack& edits) : QObject(&window), iWindow(window) {
    makeCommands(edits);
    makeAppearanceGroup();
    fillMenuBar();
    fillToolBar();
    showRecentFiles({});
    updateColors();
}

QAction* MainMenu::add(const QString& text, const QString& iconName, const QKeySequence& shortcut) {
    auto* action = new QAction(text, this);
    action->setShortcut(shortcut);
    iWindow.addAction(action);
    if (!iconName.isEmpty())
        iIcons.emplace_back(action, iconName);
    return action;
}

void MainMenu::makeProjectCommands() {
    newProject = add(tr("&New"), {}, QKeySequence::New);
    newProject->setToolTip(tr("Start a new project"));
    openProject = add(tr("&Open…"), {}, QKeySequence::Open);
    openProject->setToolTip(tr("Open a project that was saved"));
    saveProject = add(tr("&Save"), {}, QKeySequence::Save);
    saveProject->setToolTip(tr("Save the project, to go on with the book later"));
    saveProjectAs = add(tr("Save &as…"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    saveProjectAs->setToolTip(tr("Save the project under another name"));
}

void MainMenu::makeCommands(QUndoStack& edits) {
    makeProjectCommands();
    importPDF = add(tr("&Import PDF…"), QStringLiteral("import"), Qt::CTRL | Qt::Key_I);
    //: Beneath a picture in the toolbar: short.
    importPDF->setIconText(tr("Import PDF"));
    importPDF->setToolTip(tr("Make the book from a PDF document"));
    arrangePages = add(tr("Pa&ges…"), QStringLiteral("pages"), Qt::CTRL | Qt::Key_G);
    //: Beneath a picture in the toolbar: short.
    arrangePages->setIconText(tr("Pages"));
    arrangePages->setToolTip(tr("Arrange, turn, remove and insert pages"));
    exportFlipBook = add(tr("&Publish the book…"), QStringLiteral("publish"), Qt::CTRL | Qt::Key_E);
    //: Beneath a picture in the toolbar: short.
    exportFlipBook->setIconText(tr("Publish"));
    exportFlipBook->setToolTip(tr("Write the finished book into a folder of your choice"));
    importSettings = add(tr("&Load look…"), QStringLiteral("settings-load"), Qt::CTRL | Qt::Key_L);
    importSettings->setToolTip(tr("Load settings that were saved to a file"));
    exportSettings =
        add(tr("Save loo&k…"), QStringLiteral("settings-save"), Qt::CTRL | Qt::SHIFT | Qt::Key_L);
    exportSettings->setToolTip(tr("Save the settings to a file, to use them for other books"));
    saveStyle = add(tr("Save as a st&yle…"), {}, {});
    saveStyle->setToolTip(tr("Keep the settings as a style of your own among the templates"));
    quit = add(tr("&Quit"), {}, Qt::CTRL | Qt::Key_Q);
    quit->setMenuRole(QAction::QuitRole);
    toolBarItemApplyChange = add(tr("&Apply the changes"), {}, Qt::CTRL | Qt::Key_Return);
    //: Beneath a picture in the toolbar: short.
    toolBarItemApplyChange->setIconText(tr("Apply"));
    toolBarItemApplyChange->setToolTip(tr("Show the changed settings in the preview"));
    toolBarItemApplyChange->setData(0);
    selectTemplate =
        add(tr("Choose a &template…"), QStringLiteral("template"), Qt::CTRL | Qt::Key_T);
    //: Beneath a picture in the toolbar: short.
    selectTemplate->setIconText(tr("Templates"));
    selectTemplate->setToolTip(tr("Give the book another look"));
    reloadPreview = add(tr("&Reload the preview"), QStringLiteral("reload"), QKeySequence::Refresh);
    openHelp = add(tr("Folvero &help"), QStringLiteral("help"), QKeySequence::HelpContents);
    //: Beneath a picture in the toolbar: short.
    openHelp->setIconText(tr("Help"));
    about = add(tr("&About Folvero"), {}, {});
    about->setMenuRole(QAction::AboutRole);

    findSetting = add(tr("&Find a setting"), QStringLiteral("search"), QKeySequence::Find);
    resetSetting =
        add(tr("Reset to &default"), QStringLiteral("reset"), Qt::CTRL | Qt::Key_Backspace);
    resetSetting->setEnabled(false);
    resetSettings = add(tr("R&eset all settings"), {}, {});
    resetSettings->setEnabled(false);
    makeEditCommands(edits);
}

// Qt would append the name of an edit to the verb, which does not work in many languages.
void MainMenu::makeEditCommands(QUndoStack& edits) {
    undo = add(tr("&Undo"), QStringLiteral("undo"), QKeySequence::Undo);
    //: Beneath a picture in the toolbar: short.
    undo->setIconText(tr("Undo"));
    undo->setEnabled(edits.canUndo());
    connect(undo, &QAction::triggered, &edits, &QUndoStack::undo);
    connect(&edits, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&edits, &QUndoStack::undoTextChanged, undo, [this](const QString& edit) {
        //: %1 is a setting in quotation marks, or "loading of settings".
        const QString named = tr("&Undo %1");
        undo->setText(edit.isEmpty() ? tr("&Undo") : named.arg(withoutMnemonic(edit)));
    });
    redo = add(tr("&Redo"), QStringLiteral("redo"), QKeySequence::Redo);
    //: Beneath a picture in the toolbar: short.
    redo->setIconText(tr("Redo"));
    redo->setEnabled(edits.canRedo());
    connect(redo, &QAction::triggered, &edits, &QUndoStack::redo);
    connect(&edits, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    connect(&edits, &QUndoStack::redoTextChanged, redo, [this](const QString& edit) {
        //: %1 is a setting in quotation marks, or "loading of settings".
        const QString named = tr("&Redo %1");
        redo->setText(edit.isEmpty() ? tr("&Redo") : named.arg(withoutMnemonic(edit)));
    });
}

void MainMenu::makeAppearanceGroup() {
    appearance = new QActionGroup(this);
    //: The window is light or dark; this is one of the choices.
    for (const auto& [choice, text] : {std::pair(Appearance::system, tr("Like the &system")),
                                       {Appearance::light, tr("&Light")},
                                       {Appearance::dark, tr("&Dark")}}) {
        auto* action = appearance->addAction(text);
        action->setCheckable(true);
        action->setData(int(choice));
    }
}

void MainMenu::fillMenuBar() {
    auto* file = iWindow.menuBar()->addMenu(tr("&File"));
    file->addActions({newProject, openProject});
    recentFiles = file->addMenu(tr("Open &recent"));
    recentFiles->setStyle(new CoverStyle(recentFiles));
    file->addActions({saveProject, saveProjectAs});
    file->addSeparator();
    file->addActions({importPDF, arrangePages});
    file->addSeparator();
    file->addActions({importSettings, exportSettings, saveStyle});
    file->addSeparator();
    file->addAction(exportFlipBook);
    file->addSeparator();
    file->addAction(quit);
    auto* edit = iWindow.menuBar()->addMenu(tr("&Edit"));
    edit->addActions({undo, redo});
    edit->addSeparator();
    edit->addActions({findSetting, resetSetting, resetSettings});
    edit->addSeparator();
    edit->addAction(toolBarItemApplyChange);
    auto* view = iWindow.menuBar()->addMenu(tr("&View"));
    view->addActions({selectTemplate, reloadPreview});
    view->addMenu(tr("&Appearance"))->addActions(appearance->actions());
    auto* help = iWindow.menuBar()->addMenu(tr("&Help"));
    help->addActions({openHelp, about});
}

void MainMenu::fillToolBar() {
    //: The name of the toolbar.
    auto* bar = iWindow.addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize({24, 24});
    const auto addGap = [bar] {
        auto* gap = new QWidget;
        gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        bar->addWidget(gap);
    };
    bar->addActions({importPDF, arrangePages, selectTemplate});
    bar->addSeparator();
    bar->addActions({undo, redo, toolBarItemApplyChange});
    addGap();
    bar->addActions({exportFlipBook});
    bar->addSeparator();
    bar->addActions({openHelp});
    bar->installEventFilter(this);
    // Makes the buttons reachable with Tab like everything else.
    for (QAction* action : bar->actions()) {
        if (QWidget* button = bar->widgetForAction(action); button && !action->isSeparator())
            button->setFocusPolicy(action->text().isEmpty() ? Qt::NoFocus : Qt::TabFocus);
    }
}

// Without captions where there is no room for them: otherwise they would be cut off.
bool MainMenu::eventFilter(QObject* watched, QEvent* event) {
    auto* bar = qobject_cast<QToolBar*>(watched);
    if (bar && event->type() == QEvent::Resize) {
        if (bar->toolButtonStyle() == Qt::ToolButtonTextUnderIcon)
            iBarWidth = bar->sizeHint().width();
        bar->setToolButtonStyle(bar->width() < iBarWidth ? Qt::ToolButtonIconOnly
                                                         : Qt::ToolButtonTextUnderIcon);
    }
    return QObject::eventFilter(watched, event);
}

void MainMenu::showRecentFiles(const QStringList& files) {
    recentFiles->clear();
    recentFiles->setEnabled(!files.isEmpty());
    for (const QString& path : files) {
        auto* action = recentFiles->addAction(RecentCovers::of(path), QFileInfo(path).fileName());
        action->setToolTip(PlainText::toolTip(path));
        action->setStatusTip(path);
        action->setData(path);
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT recentFileChosen(path); });
    }
    recentFiles->setToolTipsVisible(true);
    recentFiles->addSeparator();
    recentFiles->addAction(tr("&Clear the list"), this, &MainMenu::recentFilesCleared);
}

void MainMenu::showApplyImage(const QString& name) {
    iApplyImage = name;
    const QColor ink = iWindow.palette().color(QPalette::ButtonText);
    toolBarItemApplyChange->setIcon(Icons::icon(name, ink));
}

void MainMenu::updateColors() {
    const QColor ink = iWindow.palette().color(QPalette::ButtonText);
    for (const auto& [action, name] : iIcons)
        action->setIcon(Icons::icon(name, ink));
    showApplyImage(iApplyImage);
}
