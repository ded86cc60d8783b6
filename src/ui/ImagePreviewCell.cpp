#include "ui/ImagePreviewCell.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr qreal imageSide = 32;
constexpr qreal imageTitleLeft = 41;
constexpr qreal imageTitleKept = 58;
constexpr qreal imageTallest = 40;

qreal centred(qreal side) {
    return side < imageSide ? std::round((imageSide - side) / 2) : 0;
}

} // namespace

QRectF ImagePreviewCell::imageRectForBounds(const QRectF& bounds) const {
    const QPointF corner(bounds.x() + 5, bounds.y() + 4);
    if (iImage.isNull())
        return {corner, QSizeF(imageSide, imageSide)};
    const QSizeF size = iImage.deviceIndependentSize();
    return {corner + QPointF(centred(size.width()), centred(size.height())), size};
}

QRectF ImagePreviewCell::titleRectForBounds(const QRectF& bounds) const {
    return titleRect(bounds, imageTitleLeft, 4, imageTitleKept);
}

QRectF ImagePreviewCell::subTitleRectForBounds(const QRectF& bounds) const {
    return rectForSubTitleBasedOnTitleRect(titleRectForBounds(bounds), bounds);
}

QRectF ImagePreviewCell::rectForSubTitleBasedOnTitleRect(const QRectF& titleRect,
                                                         const QRectF& inBounds) const {
    if (iSubTitle.isEmpty())
        return {};
    const qreal room = std::max(0.0, inBounds.right() - titleRect.x());
    return {titleRect.x(), titleRect.y() + titleRect.height(),
            std::min(textSize(iSubTitle).width(), room), titleRect.height()};
}

QRectF ImagePreviewCell::infoButtonRectForBounds(const QRectF& bounds) const {
    return rectForInfoButtonBasedOnTitleRect(titleRectForBounds(bounds), bounds);
}

QRectF ImagePreviewCell::rectForInfoButtonBasedOnTitleRect(const QRectF& titleRect,
                                                           const QRectF& inBounds) const {
    const QRectF button(std::round(titleRect.right() + 4), titleRect.y() + 2, buttonSide,
                        buttonSide);
    return button.right() <= inBounds.right() ? button : QRectF();
}

QSizeF ImagePreviewCell::cellSizeForBounds(const QRectF& bounds) const {
    return cellSize(bounds, imageTitleLeft, imageTallest);
}

void ImagePreviewCell::drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const {
    const QRectF image = imageRectForBounds(frame);
    if (iImage.isNull()) {
        QPen dashes(Qt::gray, 0);
        dashes.setDashPattern({4, 2});
        dashes.setDashOffset(1);
        painter.setPen(dashes);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(image);
    } else {
        painter.drawPixmap(image, iImage, QRectF(iImage.rect()));
    }
    drawTitle(painter, frame);
    drawText(painter, subTitleRectForBounds(frame), iSubTitle,
             isHighlighted() ? Qt::lightGray : Qt::gray);
    drawInfoButton(painter, frame);
}

int ImagePreviewCell::hitTestForEvent(const QPointF& location, const QRectF& inRect) const {
    const int hit = TextFieldCell::hitTestForEvent(location, inRect);
    if (hit != hitNone)
        return hit;
    const bool inside = imageRectForBounds(inRect).contains(location) ||
                        subTitleRectForBounds(inRect).contains(location);
    return inside ? hitContentArea : hitNone;
}
