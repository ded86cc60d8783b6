#include "app/desktop/StartPanel.h"

#include "app/desktop/RecentCovers.h"
#include "app/desktop/RecentFiles.h"
#include "ui/Icons.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// As many as a narrow window has room for.
constexpr int mostFiles = 3;
constexpr int closeIcon = 16;

QLabel* wrapped(const QString& text, const QString& name) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

StartPanel::StartPanel(QWidget* parent)
    : QFrame(parent),
      btnChoose(new QPushButton(tr("Choose a file…"))),
      iRecent(new QWidget),
      iRecentRow(new QHBoxLayout(iRecent)),
      iClose(new QToolButton) {
    setObjectName(QStringLiteral("startPanel"));
    //: What a screen reader says when it comes to the part of the window that says how to begin.
    setAccessibleName(tr("How to begin"));
    auto* title =
        wrapped(tr("Drop a PDF or a folder of pictures here"), QStringLiteral("startTitle"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    title->setFont(large);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(title);
    texts->addWidget(
        wrapped(tr("Or play with the demo book below: turn its pages, try templates and settings."),
                QStringLiteral("startText")));
    btnChoose->setToolTip(tr("Make the book from a PDF, a picture or a text"));
    iClose->setAutoRaise(true);
    iClose->setFocusPolicy(Qt::TabFocus);
    iClose->setIconSize({closeIcon, closeIcon});
    iClose->setToolTip(tr("Close this note"));
    iClose->setAccessibleName(iClose->toolTip());
    connect(iClose, &QToolButton::clicked, this, [this] {
        iIsClosed = true;
        hide();
    });
    auto* top = new QHBoxLayout;
    top->setSpacing(12);
    top->addLayout(texts, 1);
    top->addWidget(btnChoose);
    top->addWidget(iClose, 0, Qt::AlignTop);

    iRecentRow->setContentsMargins(0, 0, 0, 0);
    iRecentRow->setSpacing(4);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(14, 10, 8, 10);
    all->setSpacing(6);
    all->addLayout(top);
    all->addWidget(iRecent);
    updateColors();
    hide();
}

void StartPanel::setNeeded(bool isNeeded) {
    if (isNeeded)
        showRecentFiles();
    setVisible(isNeeded && !iIsClosed);
}

void StartPanel::showRecentFiles() {
    // Not at once: one of them may be what was clicked.
    while (const auto* item = iRecentRow->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    const QStringList files = RecentFiles::list().mid(0, mostFiles);
    for (const QString& path : files)
        iRecentRow->addWidget(recentButton(path), 1);
    // Few are as wide as many.
    for (int at = 0; at < mostFiles; ++at)
        iRecentRow->setStretch(at, 1);
    iRecent->setVisible(!files.isEmpty());
}

QToolButton* StartPanel::recentButton(const QString& path) {
    auto* button = new QToolButton;
    const QString name = QFileInfo(path).fileName();
    button->setIcon(RecentCovers::of(path));
    button->setIconSize({RecentCovers::side, RecentCovers::side});
    // Styles leave no room between the two.
    button->setText(u' ' + QString(name).replace(u'&', QStringLiteral("&&")));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    button->setToolTip(path);
    //: What a screen reader says for a file that was opened before.
    button->setAccessibleName(tr("Open %1 again").arg(name));
    connect(button, &QToolButton::clicked, this, [this, path] { Q_EMIT fileChosen(path); });
    return button;
}

void StartPanel::updateColors() {
    iClose->setIcon(Icons::icon(QStringLiteral("close"), palette().color(QPalette::ButtonText)));
}

void StartPanel::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}
