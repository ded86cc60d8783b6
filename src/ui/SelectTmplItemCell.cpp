#include "ui/SelectTmplItemCell.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace {

constexpr qreal iconSide = 32;
constexpr qreal iconLeft = 1;
constexpr qreal itemTitleLeft = 35;
// Total space left free beside the title.
constexpr qreal itemTitleKept = 71;
// From the title's top to the middle of the row.
constexpr qreal titleDrop = 8;

} // namespace

const QImage& SelectTmplItemCell::itemImage() const {
    if (!iIconLoaded)
        iIconImage = QImage(iTmplIconFile);
    iIconLoaded = true;
    return iIconImage;
}

QRectF SelectTmplItemCell::titleRectForBounds(const QRectF& bounds) const {
    return titleRect(bounds, itemTitleLeft, 1, itemTitleKept);
}

QRectF SelectTmplItemCell::imageRectForBounds(const QRectF& bounds) const {
    if (bounds.right() < iconLeft + iconSide)
        return {};
    return {iconLeft, titleRectForBounds(bounds).y() + 2, iconSide, iconSide};
}

QRectF SelectTmplItemCell::infoButtonRectForBounds(const QRectF& /*bounds*/) const {
    return {};
}

QSizeF SelectTmplItemCell::cellSizeForBounds(const QRectF& bounds) const {
    const qreal width = titleRectForBounds(bounds).width() + itemTitleKept;
    return {std::min(width, bounds.width()), std::min<qreal>(bounds.height(), rowHeight)};
}

void SelectTmplItemCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const {
    const auto role = isHighlighted() ? QPalette::HighlightedText : QPalette::Text;
    drawText(painter, titleRectForBounds(frame).translated(0, titleDrop), title(),
             QGuiApplication::palette().color(role));
    const QRectF icon = imageRectForBounds(frame);
    if (icon.isEmpty() || itemImage().isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(icon, itemImage());
}

std::unique_ptr<SelectTmplItemCell> SelectTmplItemCell::copyWithZone() const {
    auto copy = std::make_unique<SelectTmplItemCell>(*this);
    copy->setTitle(QStringLiteral("my god"));
    return copy;
}
