#include "app/desktop/MessageBar.h"

#include "app/desktop/Appearance.h"
#include "ui/Icons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>
#include <QToolButton>

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), iText(new QLabel), iIcon(new QLabel), iClose(new QToolButton) {
    setObjectName(QStringLiteral("messageBar"));
    //: What a screen reader says when it comes to the bar with a warning.
    setAccessibleName(tr("Message"));
    iText->setWordWrap(true);
    iText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    iClose->setAutoRaise(true);
    iClose->setToolTip(tr("Close the message"));
    iClose->setAccessibleName(iClose->toolTip());
    connect(iClose, &QToolButton::clicked, this, &QWidget::hide);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->setSpacing(10);
    layout->addWidget(iIcon, 0, Qt::AlignTop);
    layout->addWidget(iText, 1);
    layout->addWidget(iClose, 0, Qt::AlignTop);
    updateColors();
    hide();
}

void MessageBar::showError(const QString& what, const QString& cause) {
    iText->setText(QStringLiteral("<b>%1</b><br>%2")
                       .arg(what.toHtmlEscaped(),
                            cause.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"))));
    show();
}

QString MessageBar::message() const {
    QTextDocument text;
    text.setHtml(iText->text());
    return text.toPlainText();
}

// The icons; the style sheet does the rest.
void MessageBar::updateColors() {
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    const QColor ink = Appearance::noteColors(dark).ink;
    iIcon->setPixmap(Icons::icon(QStringLiteral("warning"), ink).pixmap(18, 18));
    iClose->setIcon(Icons::icon(QStringLiteral("close"), ink));
}

void MessageBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}
