#include "ui/TextFieldCell.h"

#include "base/Log.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QStyleOptionViewItem>
#include <QWidget>
#include <algorithm>

QString TextFieldCell::infoButtonImage() const {
    QString state = QStringLiteral("");
    if (iMouseDownInInfoButton)
        state = QStringLiteral("-mouse");
    else if (iMouseHoveredInInfoButton)
        state = QStringLiteral("-hovered");
    return QStringLiteral("info-%1%2")
        .arg(iHighlighted ? QStringLiteral("selected") : QStringLiteral("normal"), state);
}

void TextFieldCell::setRow(const QStyleOptionViewItem& row, bool isHovered) {
    iFont = row.font;
    iHighlighted = row.state.testFlag(QStyle::State_Selected);
    iMouseHoveredInInfoButton = isHovered;
}

void TextFieldCell::paint(QPainter& painter, const QStyleOptionViewItem& row) const {
    drawInteriorWithFrame(painter, frameIn(row.rect));
}

QRectF TextFieldCell::frameIn(const QRect& row) {
    constexpr qreal height = 19;
    return QRectF(row).adjusted(0, std::max(0.0, (row.height() - height) / 2), 0, 0);
}

int TextFieldCell::hitTestForEvent(const QPointF& location, const QRectF& inRect) const {
    if (titleRectForBounds(inRect).contains(location))
        return hitContentArea | hitEditableTextArea;
    if (infoButtonRectForBounds(inRect).contains(location))
        return hitContentArea | hitTrackableArea;
    return hitNone;
}

bool TextFieldCell::trackMouse(const QMouseEvent& event, const QRectF& inRect, QWidget& ofView) {
    const bool inside = infoButtonRectForBounds(inRect).contains(event.position());
    const bool isOver = event.type() == QEvent::MouseButtonRelease;
    // Ignores the release of a click that did not begin here.
    if (!isOver && iMouseDownInInfoButton != inside) {
        iMouseDownInInfoButton = inside;
        ofView.update(inRect.toAlignedRect());
    }
    if (!isOver)
        return false;
    if (!iMouseDownInInfoButton)
        return true;
    iMouseDownInInfoButton = false;
    ofView.update(inRect.toAlignedRect());
    if (!inside)
        return true;
    Log::system(QStringLiteral("Trigger action now...."));
    if (!iInfoButtonAction)
        return true;
    Log::system(QStringLiteral("Trigger action now 222...."));
    iInfoButtonAction(*this);
    Log::system(QStringLiteral("send action ok"));
    return true;
}

QRectF TextFieldCell::addTrackingAreas(const QRectF& inRect, const QPointF& mouseLocation) {
    const QRectF area = infoButtonRectForBounds(inRect);
    if (area.contains(mouseLocation))
        iMouseHoveredInInfoButton = true;
    return area;
}

QRectF TextFieldCell::expansionFrame(const QRectF& plain) {
    return plain.isEmpty() ? plain : plain.adjusted(-2, 0, 2, 0);
}

void TextFieldCell::drawWithExpansionFrame(QPainter& painter, const QRectF& frame) const {
    drawText(painter, frame.adjusted(2, 0, 0, 0), iTitle,
             QGuiApplication::palette().color(QPalette::ToolTipText));
}

QSizeF TextFieldCell::textSize(const QString& text) const {
    if (text.isEmpty())
        return {0, 0};
    const QFontMetricsF metrics(iFont);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QRectF TextFieldCell::titleRect(const QRectF& bounds, qreal left, qreal top, qreal kept) const {
    const QSizeF size = textSize(iTitle);
    const qreal width = std::min(size.width(), std::max(0.0, bounds.width() - kept));
    return {bounds.x() + left, bounds.y() + top, width, size.height()};
}

QSizeF TextFieldCell::cellSize(const QRectF& bounds, qreal left, qreal tallest) const {
    const qreal width = titleRectForBounds(bounds).width() + left + buttonRoom;
    return {std::min(width, bounds.width()), std::min(bounds.height(), tallest)};
}

void TextFieldCell::drawText(QPainter& painter, const QRectF& rect, const QString& text,
                             const QColor& color) const {
    if (text.isEmpty())
        return;
    painter.setFont(iFont);
    painter.setPen(color);
    const QString shown = QFontMetricsF(iFont).elidedText(text, Qt::ElideRight, rect.width() + 0.5);
    painter.drawText(rect,
                     int(Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine) | int(Qt::TextDontClip),
                     shown);
}

void TextFieldCell::drawTitle(QPainter& painter, const QRectF& bounds) const {
    drawText(painter, titleRectForBounds(bounds), iTitle, titleColor());
}

QColor TextFieldCell::titleColor() const {
    const auto role = iHighlighted ? QPalette::HighlightedText : QPalette::Text;
    return QGuiApplication::palette().color(role);
}

void TextFieldCell::drawInfoButton(QPainter& painter, const QRectF& bounds) const {
    const QRectF rect = infoButtonRectForBounds(bounds);
    if (rect.isEmpty())
        return;
    const QIcon icon(QStringLiteral(":/icons/%1.svg").arg(infoButtonImage()));
    icon.paint(&painter, rect.toRect());
}
