#pragma once

#include "ui/TextFieldCell.h"

#include <QPixmap>

// A picture with a title, a second line in grey, and a button after the title.
class ImagePreviewCell : public TextFieldCell {
public:
    using TextFieldCell::TextFieldCell;

    // A null picture is shown as a dashed frame.
    QPixmap image() const { return iImage; }
    void setImage(const QPixmap& image) { iImage = image; }
    QString subTitle() const { return iSubTitle; }
    void setSubTitle(const QString& subTitle) { iSubTitle = subTitle; }

    QRectF imageRectForBounds(const QRectF& bounds) const;
    QRectF titleRectForBounds(const QRectF& bounds) const override;
    // Empty without a second line.
    QRectF subTitleRectForBounds(const QRectF& bounds) const;
    QRectF rectForSubTitleBasedOnTitleRect(const QRectF& titleRect, const QRectF& inBounds) const;
    QRectF infoButtonRectForBounds(const QRectF& bounds) const override;
    QRectF rectForInfoButtonBasedOnTitleRect(const QRectF& titleRect, const QRectF& inBounds) const;
    QSizeF cellSizeForBounds(const QRectF& bounds) const override;
    void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const override;
    int hitTestForEvent(const QPointF& location, const QRectF& inRect) const override;

private:
    QPixmap iImage;
    QString iSubTitle;
};
