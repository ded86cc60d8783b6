#pragma once

#include "ui/FlashTmplCell.h"

#include <QColor>

// A colour as a swatch and as text; the swatch is the button.
class FlashTmplColorCell : public FlashTmplCell {
public:
    FlashTmplColorCell() = default;
    // Starts with red.
    explicit FlashTmplColorCell(const QString& text);

    QColor color() const { return iColor; }
    void setColor(const QColor& color) { iColor = color; }
    // Sets a picked colour and updates the text.
    void setColor2(const QColor& color);

    QRectF imageRectForBounds(const QRectF& bounds) const;
    QRectF titleRectForBounds(const QRectF& bounds) const override;
    QRectF infoButtonRectForBounds(const QRectF& bounds) const override;
    QSizeF cellSizeForBounds(const QRectF& bounds) const override;
    void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const override;

private:
    QColor iColor;
};
