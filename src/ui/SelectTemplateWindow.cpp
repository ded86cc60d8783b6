#include "ui/SelectTemplateWindow.h"

#include "ui/SelectTemplatePainters.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

namespace {

constexpr int listWidth = 200;
constexpr int firstColumns = 3;
constexpr int firstRows = 2;
constexpr int noticeIconSide = 20;

QListView* newList(const QString& name, const QString& accessibleName) {
    auto* list = new QListView;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setMouseTracking(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    return list;
}

// A text in the middle of an empty view.
QLabel* emptyText(QListView& view, const QString& name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setForegroundRole(QPalette::PlaceholderText);
    (new QVBoxLayout(view.viewport()))->addWidget(label);
    label->hide();
    return label;
}

QLabel* caption(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

SelectTemplateWindow::SelectTemplateWindow(QWidget* parent)
    : Sheet(tr("Choose a template"), parent),
      btnRefresh(new QPushButton(tr("&Refresh"))),
      btnRename(new QPushButton(tr("Re&name…"))),
      btnDelete(new QPushButton(tr("&Delete…"))),
      btnOK(new QPushButton(tr("OK"))) {
    makeTmplList();
    makeStyleBrowser();
    btnRefresh->setObjectName(QStringLiteral("refresh"));
    btnRefresh->setAutoDefault(false);
    // In addition to the mnemonic in its caption, which a shortcut of the button would replace.
    const auto* refresh = new QShortcut(QKeySequence::Refresh, this);
    connect(refresh, &QShortcut::activated, btnRefresh, &QPushButton::click);
    //: %1 is a key.
    btnRefresh->setToolTip(tr("Looks for templates that were added or repaired meanwhile (%1)")
                               .arg(refresh->key().toString(QKeySequence::NativeText)));
    makeStyleButtons();
    btnOK->setObjectName(QStringLiteral("ok"));
    btnCancel->setObjectName(QStringLiteral("cancel"));

    auto* lists = new QGridLayout;
    lists->setHorizontalSpacing(12);
    lists->addWidget(caption(tr("&Templates"), iTableViewTmpls), 0, 0);
    lists->addWidget(caption(tr("&Styles"), iImgBrowserView), 0, 1);
    lists->addWidget(iTableViewTmpls, 1, 0);
    lists->addWidget(iImgBrowserView, 1, 1);
    lists->setColumnStretch(1, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(btnRefresh);
    buttons->addWidget(btnRename);
    buttons->addWidget(btnDelete);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margins);
    all->setSpacing(12);
    all->addLayout(lists, 1);
    all->addWidget(noticeRow());
    all->addLayout(buttons);
    buttons->addWidget(buttonRow(btnOK), 1);
    resize(sizeHint().expandedTo(firstSize()));
}

QSize SelectTemplateWindow::firstSize() const {
    const QSize cell = TmplStylePainter::smallestCell(iImgBrowserView->fontMetrics());
    const QSize others = layout()->minimumSize() - iImgBrowserView->minimumSize();
    const int frame = 2 * iImgBrowserView->frameWidth() + 1;
    const int bar = iImgBrowserView->verticalScrollBar()->sizeHint().width();
    return others + QSize(firstColumns * cell.width(), firstRows * cell.height()) +
           QSize(frame + bar, frame);
}

void SelectTemplateWindow::makeTmplList() {
    iTableViewTmpls = newList(QStringLiteral("templates"), tr("Templates"));
    iTableViewTmpls->setFixedWidth(listWidth);
    iTableViewTmpls->setSpacing(2);
    iTableViewTmpls->setUniformItemSizes(true);
    lblNoTmpls =
        emptyText(*iTableViewTmpls, QStringLiteral("noTemplates"), tr("There are no templates."));
}

void SelectTemplateWindow::makeStyleBrowser() {
    iImgBrowserView = newList(QStringLiteral("styles"), tr("Styles"));
    iImgBrowserView->setViewMode(QListView::IconMode);
    iImgBrowserView->setMovement(QListView::Static);
    iImgBrowserView->setResizeMode(QListView::Adjust);
    lblNoStyles =
        emptyText(*iImgBrowserView, QStringLiteral("noStyles"), tr("This template has no styles."));
    const QSize cell = TmplStylePainter::smallestCell(iImgBrowserView->fontMetrics());
    const int frame = 2 * iImgBrowserView->frameWidth();
    const int bar = iImgBrowserView->verticalScrollBar()->sizeHint().width();
    iImgBrowserView->setMinimumSize(cell.width() + frame + bar, cell.height() + frame);
    iImgBrowserView->installEventFilter(this);
}

void SelectTemplateWindow::makeStyleButtons() {
    const auto make = [this](QPushButton* button, const QString& name, const QKeySequence& key,
                             const QString& text) {
        button->setObjectName(name);
        button->setAutoDefault(false);
        button->setEnabled(false);
        const auto* shortcut =
            new QShortcut(key, iImgBrowserView, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
        button->setToolTip(text.arg(key.toString(QKeySequence::NativeText)));
    };
    //: %1 is a key.
    make(btnRename, QStringLiteral("rename"), Qt::Key_F2,
         tr("Gives a style of your own another name (%1)"));
    //: %1 is a key.
    make(btnDelete, QStringLiteral("delete"), QKeySequence::Delete,
         tr("Deletes a style of your own (%1)"));
}

QWidget* SelectTemplateWindow::noticeRow() {
    iNotice = new QWidget;
    iNotice->setObjectName(QStringLiteral("noticeRow"));
    iNoticeIcon = new QLabel;
    lblNotice = new QLabel;
    lblNotice->setObjectName(QStringLiteral("notice"));
    lblNotice->setTextFormat(Qt::PlainText);
    lblNotice->setWordWrap(true);
    lblNotice->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* layout = new QHBoxLayout(iNotice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(iNoticeIcon, 0, Qt::AlignTop);
    layout->addWidget(lblNotice, 1);
    iNotice->hide();
    return iNotice;
}

void SelectTemplateWindow::showNotice(const QString& notice) {
    iNoticeIcon->setPixmap(style()
                               ->standardIcon(QStyle::SP_MessageBoxWarning)
                               .pixmap(QSize(noticeIconSide, noticeIconSide), devicePixelRatio()));
    lblNotice->setText(notice);
    iNotice->setVisible(!notice.isEmpty());
}

bool SelectTemplateWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        fitGrid();
    return Sheet::eventFilter(watched, event);
}

void SelectTemplateWindow::fitGrid() {
    const QSize cell = TmplStylePainter::smallestCell(iImgBrowserView->fontMetrics());
    const int frame = 2 * iImgBrowserView->frameWidth();
    const QSize room = iImgBrowserView->size() - QSize(frame, frame);
    const int count = iImgBrowserView->model() ? iImgBrowserView->model()->rowCount() : 0;
    // The view wraps a row that uses its full width.
    const auto columnsIn = [&cell](int width) { return std::max(1, (width - 1) / cell.width()); };
    int width = room.width();
    const int rows = (count + columnsIn(width) - 1) / columnsIn(width);
    const bool scrolls = rows * cell.height() > room.height();
    if (scrolls)
        width -= iImgBrowserView->verticalScrollBar()->sizeHint().width();
    // A scroll bar shown as needed takes its width even while hidden.
    iImgBrowserView->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn
                                                        : Qt::ScrollBarAlwaysOff);
    const QSize grid((width - 1) / columnsIn(width), cell.height());
    if (iImgBrowserView->gridSize() != grid)
        iImgBrowserView->setGridSize(grid);
}
