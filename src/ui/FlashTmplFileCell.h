#pragma once

#include "ui/FlashTmplCell.h"

// A file's path with a button that chooses another file.
class FlashTmplFileCell : public FlashTmplCell {
public:
    using FlashTmplCell::FlashTmplCell;

    // Sets a chosen file; the text is its path.
    void setFileName2(const QString& path) { setTitle(path); }

    void showValue(const QString& value) override { setTitle(value); }

    // Whether it names a file that books are made without, since it is not there.
    static bool isMissing(const QString& path);

    QRectF titleRectForBounds(const QRectF& bounds) const override;
    QRectF infoButtonRectForBounds(const QRectF& bounds) const override;
    QRectF rectForInfoButtonBasedOnTitleRect(const QRectF& titleRect, const QRectF& inBounds) const;
    QSizeF cellSizeForBounds(const QRectF& bounds) const override;
    // Marks the path of a missing file.
    void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const override;

protected:
    QColor titleColor() const override;
};
