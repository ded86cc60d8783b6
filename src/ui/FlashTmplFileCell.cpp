#include "ui/FlashTmplFileCell.h"

#include <cmath>

namespace {

constexpr qreal titleLeft = 4;
constexpr qreal titleKept = 21;
constexpr qreal buttonFromRight = 14;
constexpr qreal tallest = 3;

} // namespace

QRectF FlashTmplFileCell::titleRectForBounds(const QRectF& bounds) const {
    return titleRect(bounds, titleLeft, 1, titleKept);
}

QRectF FlashTmplFileCell::infoButtonRectForBounds(const QRectF& bounds) const {
    return rectForInfoButtonBasedOnTitleRect(titleRectForBounds(bounds), bounds);
}

QRectF FlashTmplFileCell::rectForInfoButtonBasedOnTitleRect(const QRectF& titleRect,
                                                            const QRectF& inBounds) const {
    const qreal x = std::round(inBounds.right() - buttonFromRight);
    const QRectF button(x, titleRect.y() + 2, buttonSide, buttonSide);
    const bool fits = inBounds.width() >= buttonSide && button.right() <= inBounds.right();
    return fits ? button : QRectF();
}

QSizeF FlashTmplFileCell::cellSizeForBounds(const QRectF& bounds) const {
    return cellSize(bounds, titleLeft, tallest);
}

void FlashTmplFileCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const {
    drawTitle(painter, frame);
    drawInfoButton(painter, frame);
}
