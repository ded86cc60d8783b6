#include "app/desktop/MainWindow.h"

#include "app/desktop/DropHint.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewPane.h"
#include "app/desktop/ResultBar.h"
#include "app/desktop/StartPanel.h"
#include "app/desktop/WindowShortcut.h"
#include "ui/DroppedFiles.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/SettingsSearch.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QString sidesKey = QStringLiteral("mainWindow/sides");
const QString tipKey = QStringLiteral("mainWindow/editorAndTip");
const QString columnKey = QStringLiteral("mainWindow/titleColumn");
constexpr int editorWidth = 420;
constexpr int titleColumnWidth = 172;
constexpr int minColumnWidth = 60;
constexpr int tipHeight = 130;
constexpr int gap = 8;

// A view in a frame with rounded corners, and what lies above it.
QWidget* card(QWidget* above, QWidget* view, const QString& name) {
    auto* frame = new QFrame;
    frame->setObjectName(name);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 4, 2, 4);
    layout->setSpacing(0);
    layout->addWidget(above);
    layout->addWidget(view);
    return frame;
}

// A bar that is not always there, and what lies beneath it.
QWidget* stacked(QWidget* bar, QWidget* content) {
    auto* whole = new QWidget;
    auto* layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(content, 1);
    return whole;
}

} // namespace

MainWindow::MainWindow(QUndoStack& edits)
    : menu(new MainMenu(*this, edits)),
      result(new ResultBar),
      iSides(new QSplitter(Qt::Horizontal)),
      iEditorAndTip(new QSplitter(Qt::Vertical)) {
    setAcceptDrops(true);
    iDropHint = new DropHint(*this);
    setUnifiedTitleAndToolBarOnMac(true);
    iSides->addWidget(editorSide());
    iSides->addWidget(previewSide());
    iSides->setStretchFactor(1, 1);
    iSides->setChildrenCollapsible(false);
    iSides->setHandleWidth(1);
    setCentralWidget(stacked(result, iSides));
    new WindowShortcut(*menu->exportFlipBook, *this);
    setDocumentName({});
    restoreSizes();
}

QWidget* MainWindow::editorSide() {
    outlineView = new FlashTemplateOutline;
    outlineView->setObjectName(QStringLiteral("settings"));
    outlineView->setAccessibleName(tr("Settings of the template"));
    outlineView->setFrameShape(QFrame::NoFrame);
    outlineView->setUniformRowHeights(true);
    outlineView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    outlineView->header()->setMinimumSectionSize(minColumnWidth);
    outlineView->setEditTriggers(
        QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
        QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    search = new SettingsSearch(*outlineView);
    connect(menu->findSetting, &QAction::triggered, search, &SettingsSearch::begin);
    iEditorAndTip->addWidget(card(search, outlineView, QStringLiteral("settingsCard")));
    iEditorAndTip->addWidget(tipBox());
    iEditorAndTip->setHandleWidth(gap);
    iEditorAndTip->setStretchFactor(0, 1);
    iEditorAndTip->setChildrenCollapsible(false);

    auto* side = new QWidget;
    side->setMinimumWidth(260);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addWidget(templateRow());
    layout->addWidget(iEditorAndTip, 1);
    return side;
}

QWidget* MainWindow::templateRow() {
    btnFloat = new QPushButton;
    btnFloat->setIconSize({20, 20});
    btnFloat->setObjectName(QStringLiteral("templateName"));
    btnFloat->setAccessibleName(tr("Template of the book"));
    btnFloat->setToolTip(tr("The template of the book; click to choose another"));
    const auto button = [](QAction* action) {
        auto* made = new QToolButton;
        made->setDefaultAction(action);
        made->setAutoRaise(true);
        made->setIconSize({20, 20});
        made->setFocusPolicy(Qt::TabFocus);
        return made;
    };
    btnImportTmpl = button(menu->importSettings);
    btnExportTmpl = button(menu->exportSettings);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(btnFloat, 1);
    layout->addWidget(btnImportTmpl);
    layout->addWidget(btnExportTmpl);
    return row;
}

QWidget* MainWindow::tipBox() {
    toolTip = new QPlainTextEdit;
    toolTip->setReadOnly(true);
    toolTip->setFrameShape(QFrame::NoFrame);
    toolTip->setTabChangesFocus(true);
    toolTip->viewport()->setAutoFillBackground(false);
    toolTip->setPlaceholderText(tr("Select a setting to read what it does."));
    toolTip->setAccessibleName(tr("What the selected setting does"));
    //: Above the explanation of the selected setting, while none is selected.
    toolTipBox = new QGroupBox(tr("Settings"));
    auto* layout = new QVBoxLayout(toolTipBox);
    layout->setContentsMargins(6, 2, 6, 4);
    layout->addWidget(toolTip);
    return toolTipBox;
}

QWidget* MainWindow::previewSide() {
    messages = new MessageBar;
    start = new StartPanel;
    auto* preview = new PreviewPane;
    webView = preview->view();
    return stacked(messages, stacked(start, preview));
}

void MainWindow::setDocumentName(const QString& name) {
    iHasDocument = !name.isNull();
    iDocumentName = iHasDocument ? name : tr("Demo book");
    //: The title of the window; %1 is the name of the document, [*] marks changes.
    setWindowTitle(tr("%1[*] – Folvero").arg(iDocumentName));
    start->setNeeded(!iHasDocument);
}

void MainWindow::restoreSizes() {
    const QSettings settings;
    if (!iSides->restoreState(settings.value(sidesKey).toByteArray()))
        iSides->setSizes({editorWidth, 10 * editorWidth});
    if (!iEditorAndTip->restoreState(settings.value(tipKey).toByteArray()))
        iEditorAndTip->setSizes({10 * tipHeight, tipHeight});
    const int column =
        std::clamp(settings.value(columnKey, titleColumnWidth).toInt(), minColumnWidth, 2000);
    // There are no columns before a template is loaded.
    connect(outlineView->header(), &QHeaderView::sectionCountChanged, this,
            [this, column](int before) {
                if (before == 0)
                    outlineView->header()->resizeSection(0, column);
            });
}

void MainWindow::saveSizes() const {
    QSettings settings;
    settings.setValue(sidesKey, iSides->saveState());
    settings.setValue(tipKey, iEditorAndTip->saveState());
    settings.setValue(columnKey, outlineView->header()->sectionSize(0));
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        menu->updateColors();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    saveSizes();
    event->accept();
}

// Files that can't be used are accepted, too: the hint and a message say so.
void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const QMimeData& files = *event->mimeData();
    if (DroppedFiles::paths(files).isEmpty())
        return;
    event->acceptProposedAction();
    iDropHint->showFor(files, iHasDocument ? iDocumentName : QString());
    iDropHint->pointAt(event->position().toPoint());
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    iDropHint->pointAt(event->position().toPoint());
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    iDropHint->hide();
}

void MainWindow::dropEvent(QDropEvent* event) {
    iDropHint->hide();
    event->acceptProposedAction();
    iDropHint->pointAt(event->position().toPoint());
    // The drag source is blocked until this function returns.
    const auto signal = iDropHint->areAdded() ? &MainWindow::filesAdded : &MainWindow::filesDropped;
    QMetaObject::invokeMethod(
        this,
        [this, signal, paths = DroppedFiles::paths(*event->mimeData())] {
            Q_EMIT(this->*signal)(paths);
        },
        Qt::QueuedConnection);
}
