#include "ui/FlashTmplColorCell.h"

#include "util/ColorCategory.h"

#include <QPainter>

namespace {

constexpr qreal colorTitleLeft = 24;
constexpr qreal colorTitleKept = 41;
constexpr qreal colorTallest = 17;

} // namespace

FlashTmplColorCell::FlashTmplColorCell(const QString& text)
    : FlashTmplCell(text), iColor(Qt::red) {}

void FlashTmplColorCell::setColor2(const QColor& color) {
    iColor = color;
    setTitle(MyColorOper::colorToHexRGB(color));
}

QRectF FlashTmplColorCell::imageRectForBounds(const QRectF& bounds) const {
    return {bounds.x() + 5, bounds.y() + 1, 15, 15};
}

QRectF FlashTmplColorCell::titleRectForBounds(const QRectF& bounds) const {
    return titleRect(bounds, colorTitleLeft, 1, colorTitleKept);
}

QRectF FlashTmplColorCell::infoButtonRectForBounds(const QRectF& bounds) const {
    return imageRectForBounds(bounds);
}

QSizeF FlashTmplColorCell::cellSizeForBounds(const QRectF& bounds) const {
    return cellSize(bounds, colorTitleLeft, colorTallest);
}

void FlashTmplColorCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const {
    const QRectF swatch = imageRectForBounds(frame);
    painter.setPen(QPen(Qt::gray, 1));
    painter.setBrush(Qt::NoBrush);
    // Keeps the one-pixel line inside the rectangle.
    painter.drawRect(swatch.adjusted(0.5, 0.5, -0.5, -0.5));
    if (iColor.isValid())
        painter.fillRect(swatch.adjusted(1, 1, -1, -1), iColor);
    drawTitle(painter, frame);
}
