#include "ui/PagesWindow.h"

#include "ui/EdgeScroller.h"
#include "ui/Icons.h"
#include "ui/PagePainter.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize usualSize(900, 620);

} // namespace

PagesWindow::PagesWindow(QWidget* parent)
    : Sheet(tr("The book's pages"), parent),
      lblCount(new QLabel),
      lblFailure(failureLabel()),
      //: The book is made of these pages, in this order.
      btnOK(new QPushButton(tr("&Use these pages"))),
      iTools(new QToolBar) {
    makeList();
    makeActions();
    fillToolBar();
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    all->addWidget(iTools);
    all->addWidget(pages, 1);
    all->addWidget(lblCount);
    all->addWidget(lblFailure);
    all->addWidget(buttonRow(btnOK));
    resize(usualSize);
}

// As a wrapping list: as icons they could be dropped anywhere, not only between others.
void PagesWindow::makeList() {
    pages = new QListView;
    pages->setItemDelegate(new PagePainter(pages));
    pages->setFlow(QListView::LeftToRight);
    pages->setWrapping(true);
    pages->setResizeMode(QListView::Adjust);
    pages->setUniformItemSizes(true);
    pages->setSelectionMode(QAbstractItemView::ExtendedSelection);
    pages->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    pages->setMovement(QListView::Static);
    pages->setDragEnabled(true);
    pages->setAcceptDrops(true);
    pages->setDragDropMode(QAbstractItemView::DragDrop);
    pages->setDefaultDropAction(Qt::MoveAction);
    pages->setDragDropOverwriteMode(false);
    pages->setMouseTracking(true);
    new EdgeScroller(*pages);
    pages->setAccessibleName(tr("Pages"));
}

QAction* PagesWindow::add(const QString& icon, const QString& text, const QString& toolTip,
                          const QKeySequence& shortcut) {
    auto* action = new QAction(text, this);
    action->setShortcut(shortcut);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(toolTip, shortcut.toString(QKeySequence::NativeText)));
    addAction(action);
    iIcons.emplace_back(action, icon);
    return action;
}

void PagesWindow::makeActions() {
    const auto named = [](const char* name) { return QString::fromLatin1(name); };
    //: Beneath a picture in the toolbar, as the others here: short.
    insertFiles = add(named("page-insert"), tr("Insert…"),
                      tr("Insert PDFs, pictures and documents before the selected page"),
                      Qt::CTRL | Qt::Key_I);
    insertBlankPage = add(named("page-blank"), tr("Blank page"),
                          tr("Insert a blank page before the selected one"), Qt::Key_Insert);
    turnLeft = add(named("turn-left"), tr("Turn left"), tr("Turn the selected pages to the left"),
                   Qt::CTRL | Qt::Key_L);
    turnRight = add(named("turn-right"), tr("Turn right"),
                    tr("Turn the selected pages to the right"), Qt::CTRL | Qt::Key_R);
    earlier = add(named("page-earlier"), tr("Earlier"),
                  tr("Move the selected pages towards the beginning"), Qt::ALT | Qt::Key_Left);
    later = add(named("page-later"), tr("Later"), tr("Move the selected pages towards the end"),
                Qt::ALT | Qt::Key_Right);
    //: The selected page becomes the book's cover.
    makeFirst = add(named("page-first"), tr("As cover"),
                    tr("Move the selected page to the front of the book"), Qt::ALT | Qt::Key_Home);
    removePages = add(named("page-remove"), tr("Remove"),
                      tr("Take the selected pages out of the book"), Qt::Key_Delete);
    undo = add(named("undo"), tr("Undo"), tr("Undo"), QKeySequence::Undo);
    redo = add(named("redo"), tr("Redo"), tr("Redo"), QKeySequence::Redo);
}

void PagesWindow::fillToolBar() {
    const QList<QList<QAction*>> groups{{insertFiles, insertBlankPage},
                                        {turnLeft, turnRight},
                                        {earlier, later, makeFirst},
                                        {removePages},
                                        {undo, redo}};
    for (const QList<QAction*>& group : groups) {
        if (group != groups.front())
            iTools->addSeparator();
        iTools->addActions(group);
    }
    iTools->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    iTools->setIconSize({22, 22});
    for (QAction* action : iTools->actions()) {
        if (!action->isSeparator())
            iTools->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
    updateColors();
}

void PagesWindow::updateColors() {
    for (const auto& [action, icon] : iIcons)
        action->setIcon(Icons::icon(icon, palette().color(QPalette::ButtonText)));
}

// Captions are longer in other languages.
void PagesWindow::showEvent(QShowEvent* event) {
    const int needed = iTools->sizeHint().width() + margins.left() + margins.right();
    resize(std::max(width(), needed), height());
    Sheet::showEvent(event);
}

void PagesWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    Sheet::changeEvent(event);
}
