#include "ui/FlashTmplFileCell.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <cmath>

namespace {

constexpr qreal fileTitleLeft = 4;
constexpr qreal fileTitleKept = 21;
constexpr qreal buttonFromRight = 14;
constexpr qreal fileTallest = 3;
constexpr int darkBelow = 128;

} // namespace

QRectF FlashTmplFileCell::titleRectForBounds(const QRectF& bounds) const {
    return titleRect(bounds, fileTitleLeft, 1, fileTitleKept);
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
    return cellSize(bounds, fileTitleLeft, fileTallest);
}

void FlashTmplFileCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const {
    drawTitle(painter, frame);
    if (isMissing(title())) {
        const QRectF text = titleRectForBounds(frame);
        painter.setPen(QPen(titleColor(), 1, Qt::DotLine));
        painter.drawLine(text.bottomLeft(), text.bottomRight());
    }
    drawInfoButton(painter, frame);
}

bool FlashTmplFileCell::isMissing(const QString& path) {
    return !path.isEmpty() && !QFileInfo(path).isFile();
}

QColor FlashTmplFileCell::titleColor() const {
    if (isHighlighted() || !isMissing(title()))
        return TextFieldCell::titleColor();
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < darkBelow;
    return isDark ? QColor(0xff, 0x9a, 0x8d) : QColor(0xb4, 0x23, 0x18);
}
