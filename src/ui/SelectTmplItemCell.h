#pragma once

#include "ui/TextFieldCell.h"

#include <QImage>
#include <memory>

// A template in a list: its icon with its name beside it, in a row of 35 pixels.
class SelectTmplItemCell : public TextFieldCell {
public:
    using TextFieldCell::TextFieldCell;

    // Path of the icon's file.
    QString tmplIconFile() const { return iTmplIconFile; }
    void setTmplIconFile(const QString& path) { iTmplIconFile = path; }
    // Loaded on the first call and cached; null when the file can't be read.
    const QImage& itemImage() const;

    QRectF titleRectForBounds(const QRectF& bounds) const override;
    // Empty when there is no room for the icon.
    QRectF imageRectForBounds(const QRectF& bounds) const;
    // A template's row has no button.
    QRectF infoButtonRectForBounds(const QRectF& bounds) const override;
    QSizeF cellSizeForBounds(const QRectF& bounds) const override;
    void drawInteriorWithFrame(QPainter& painter, const QRectF& frame) const override;

    // A cell for the same icon, without a name.
    std::unique_ptr<SelectTmplItemCell> copyWithZone() const;

    static constexpr int rowHeight = 35;

private:
    QString iTmplIconFile;
    mutable QImage iIconImage;
    mutable bool iIconLoaded = false;
};
