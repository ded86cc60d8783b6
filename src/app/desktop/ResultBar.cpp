#include "app/desktop/ResultBar.h"

#include "ui/Icons.h"
#include "ui/PlainText.h"

#include <QClipboard>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int minTextWidth = 120;

QLabel* textLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    // Longer texts are elided and don't make the window wider.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setMinimumWidth(minTextWidth);
    return label;
}

} // namespace

ResultBar::ResultBar(QWidget* parent)
    : QFrame(parent),
      btnOpen(new QPushButton(tr("Open"))),
      btnShowFolder(new QPushButton(tr("Show in folder"))),
      btnCopyLink(new QPushButton(tr("Copy link"))),
      //: The text embeds the book in another page.
      btnCopyEmbed(new QPushButton(tr("Copy embed text"))),
      btnAgain(new QPushButton(tr("Publish again"))),
      iIcon(new QLabel),
      iTitleLabel(textLabel()),
      iDetailLabel(textLabel()),
      iClose(new QToolButton) {
    setObjectName(QStringLiteral("resultBar"));
    //: What a screen reader says when it comes to the bar after a publish.
    setAccessibleName(tr("Published book"));
    iDetailLabel->setObjectName(QStringLiteral("hint"));
    btnOpen->setToolTip(tr("Opens the book in the program that usually shows it"));
    btnAgain->setToolTip(tr("Publishes the book as it is now, with the same choices"));
    iClose->setAutoRaise(true);
    iClose->setToolTip(tr("Close the message"));
    iClose->setAccessibleName(iClose->toolTip());

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(iTitleLabel);
    texts->addWidget(iDetailLabel);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addWidget(iIcon);
    layout->addLayout(texts, 1);
    for (auto* button : {btnOpen, btnShowFolder, btnCopyLink, btnCopyEmbed, btnAgain}) {
        button->setAutoDefault(false);
        layout->addWidget(button);
    }
    layout->addWidget(iClose);
    connectButtons();
    updateColors();
    hide();
}

void ResultBar::connectButtons() {
    connect(btnOpen, &QPushButton::clicked, this, [this] { Q_EMIT openRequested(iResult.file); });
    connect(btnShowFolder, &QPushButton::clicked, this,
            [this] { Q_EMIT openRequested(QFileInfo(iResult.file).path()); });
    connect(btnCopyLink, &QPushButton::clicked, this,
            [this] { copy(iResult.link, tr("Copied: %1").arg(iResult.link)); });
    connect(btnCopyEmbed, &QPushButton::clicked, this,
            [this] { copy(iResult.embed, tr("Copied: %1").arg(iResult.embed)); });
    connect(btnAgain, &QPushButton::clicked, this, &ResultBar::publishRequested);
    connect(iClose, &QToolButton::clicked, this, &QWidget::hide);
}

void ResultBar::showResult(const PublishResult& result) {
    iResult = result;
    btnCopyLink->setVisible(!result.link.isEmpty());
    btnCopyEmbed->setVisible(!result.embed.isEmpty());
    showDetail(result.file);
    show();
}

void ResultBar::copy(const QString& text, const QString& done) {
    QGuiApplication::clipboard()->setText(text);
    showDetail(done);
}

void ResultBar::showDetail(const QString& text) {
    iDetail = text;
    iDetailLabel->setToolTip(PlainText::toolTip(text));
    elideTexts();
}

void ResultBar::elideTexts() {
    const auto elide = [](QLabel* label, const QString& text, Qt::TextElideMode mode) {
        label->setText(label->fontMetrics().elidedText(text, mode, label->width()));
        label->setAccessibleName(text);
    };
    elide(iTitleLabel, tr("“%1” was published").arg(iResult.title), Qt::ElideMiddle);
    elide(iDetailLabel, iDetail, Qt::ElideMiddle);
}

void ResultBar::updateColors() {
    const QColor ink = palette().color(QPalette::WindowText);
    iIcon->setPixmap(Icons::icon(QStringLiteral("done"), ink).pixmap(20, 20));
    iClose->setIcon(Icons::icon(QStringLiteral("close"), ink));
}

void ResultBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}

// The labels have their new width only after this.
void ResultBar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    QMetaObject::invokeMethod(this, &ResultBar::elideTexts, Qt::QueuedConnection);
}
