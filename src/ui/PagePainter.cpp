#include "ui/PagePainter.h"

#include "ui/ItemPainting.h"
#include "ui/PagesModel.h"

#include <QApplication>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

using ItemPainting::faded;
using ItemPainting::is;

namespace {

constexpr QSize pictureRoom(112, 124);
constexpr int cellPadding = 8;
constexpr int numberGap = 4;
constexpr qreal cornerRadius = 6;
// Of a page whose picture is not there yet, and of a blank one.
constexpr QSizeF usualShape(210, 297);

// Read at the size at which it is shown; a null pixmap when it can't be.
QPixmap pictureAt(const QString& file, int rotation, qreal pixelRatio) {
    const QString key = QStringLiteral("page-%1-%2-%3").arg(file).arg(rotation).arg(pixelRatio);
    QPixmap pixmap;
    if (file.isEmpty() || QPixmapCache::find(key, &pixmap))
        return pixmap;
    QImageReader reader(file);
    const bool isTurned = rotation % 180 != 0;
    const QSizeF room = QSizeF(isTurned ? pictureRoom.transposed() : pictureRoom) * pixelRatio;
    reader.setAutoTransform(true);
    reader.setScaledSize(
        QSizeF(reader.size()).scaled(room, Qt::KeepAspectRatio).toSize().expandedTo({1, 1}));
    const QImage image = reader.read();
    if (image.isNull())
        return pixmap;
    pixmap = QPixmap::fromImage(image.transformed(QTransform().rotate(rotation)));
    pixmap.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// The sheet stands on the line above its number, as books on a shelf do.
QRectF drawSheet(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QRect room(
        QPoint(option.rect.center().x() - pictureRoom.width() / 2, option.rect.top() + cellPadding),
        pictureRoom);
    const int rotation = index.data(PagesModel::rotationRole).toInt();
    const QPixmap picture = pictureAt(index.data(PagesModel::pictureRole).toString(), rotation,
                                      painter.device()->devicePixelRatioF());
    const QSizeF shape = rotation % 180 != 0 ? usualShape.transposed() : usualShape;
    QRectF sheet({}, picture.isNull() ? shape.scaled(pictureRoom, Qt::KeepAspectRatio)
                                      : picture.deviceIndependentSize());
    sheet.moveCenter(QRectF(room).center());
    sheet.moveBottom(room.bottom());
    sheet.moveTopLeft(sheet.topLeft().toPoint());
    painter.fillRect(sheet, Qt::white);
    painter.drawPixmap(sheet.topLeft(), picture);
    painter.setPen(faded(option.palette.color(QPalette::Text), 0.3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
    return sheet;
}

} // namespace

void PagePainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const bool isSelected = is(option, QStyle::State_Selected);
    const QColor highlight = option.palette.color(QPalette::Highlight);
    const QRectF cell = QRectF(option.rect).adjusted(2, 2, -2, -2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isSelected || is(option, QStyle::State_MouseOver)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(isSelected ? highlight : faded(highlight, 0.15));
        painter->drawRoundedRect(cell, cornerRadius, cornerRadius);
    }
    const QRectF sheet = drawSheet(*painter, option, index);
    if (is(option, QStyle::State_HasFocus)) {
        painter->setPen(QPen(faded(option.palette.color(QPalette::Text), 0.7), 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(cell, cornerRadius, cornerRadius);
    }
    painter->setFont(option.font);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(
        QRectF(cell.left(), sheet.bottom() + numberGap, cell.width(), option.fontMetrics.height()),
        Qt::AlignCenter, index.data().toString());
    painter->restore();
}

QSize PagePainter::sizeHint(const QStyleOptionViewItem& option,
                            const QModelIndex& /*index*/) const {
    return {pictureRoom.width() + 2 * cellPadding, cellPadding + pictureRoom.height() + numberGap +
                                                       option.fontMetrics.height() + cellPadding};
}
