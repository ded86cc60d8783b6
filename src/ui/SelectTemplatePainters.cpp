#include "ui/SelectTemplatePainters.h"

#include "ui/ItemPainting.h"
#include "ui/SelectTemplateModels.h"

#include <QHelpEvent>
#include <QListView>
#include <QPainter>
#include <QPixmapCache>
#include <QToolTip>

using ItemPainting::faded;
using ItemPainting::is;

namespace {

// The icon's place in a row is fixed; what follows it moves.
constexpr int rowPadding = 5;
constexpr int titlePadding = 6;
constexpr int badgeSide = 16;
constexpr qreal rowRadius = 6;

constexpr QSize pictureSize(200, 150);
constexpr int cellPadding = 12;
constexpr int nameGap = 10;
constexpr int namePadding = 8;
constexpr int nameHeightPadding = 3;
constexpr qreal pictureRadius = 4;
// The frame of the selected picture, and the gap between the two.
constexpr qreal frameWidth = 3;
constexpr qreal frameGap = 2;

void drawFocus(QPainter& painter, const QRectF& rect, const QColor& color) {
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), rowRadius, rowRadius);
}

QRect pictureRect(const QRect& cell) {
    return {QPoint(cell.center().x() - pictureSize.width() / 2, cell.top() + cellPadding),
            pictureSize};
}

QRect nameRect(const QRect& cell, const QFontMetrics& font, const QString& name) {
    const QRect picture = pictureRect(cell);
    const int width = std::min(picture.width(), font.horizontalAdvance(name) + 2 * namePadding + 1);
    return {picture.center().x() - width / 2, picture.bottom() + nameGap, width,
            font.height() + 2 * nameHeightPadding};
}

// Scaled once for the screen's device pixels, which is sharper and faster than scaling on each
// paint. Small pictures are not enlarged.
QPixmap scaled(const QImage& image, qreal pixelRatio) {
    const QSizeF natural = QSizeF(image.size()) * pixelRatio;
    const QSizeF box = (QSizeF(pictureSize) * pixelRatio).boundedTo(natural);
    const QSize size =
        QSizeF(image.size()).scaled(box, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
    const QString key = QStringLiteral("style-%1-%2x%3-%4")
                            .arg(image.cacheKey())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(pixelRatio);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap =
        QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// Draws the picture or its placeholder and returns its rectangle.
QRectF drawPicture(QPainter& painter, const QStyleOptionViewItem& option, const QImage& image) {
    const QRectF room = pictureRect(option.rect);
    if (image.isNull()) {
        painter.setPen(QPen(faded(option.palette.color(QPalette::Text), 0.4), 1, Qt::DashLine));
        painter.setBrush(faded(option.palette.color(QPalette::Text), 0.04));
        painter.drawRoundedRect(room.adjusted(0.5, 0.5, -0.5, -0.5), pictureRadius, pictureRadius);
        painter.setPen(faded(option.palette.color(QPalette::Text), 0.7));
        painter.drawText(room, Qt::AlignCenter, TmplStylePainter::tr("No picture"));
        return room;
    }
    const QPixmap pixmap = scaled(image, painter.device()->devicePixelRatioF());
    QRectF rect({}, pixmap.deviceIndependentSize());
    rect.moveCenter(room.center());
    rect.moveTopLeft(rect.topLeft().toPoint());
    painter.drawPixmap(rect.topLeft(), pixmap);
    painter.setPen(QPen(faded(option.palette.color(QPalette::Text), 0.25), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    return rect;
}

void drawFrame(QPainter& painter, const QRectF& picture, const QColor& color) {
    constexpr qreal out = frameGap + frameWidth / 2;
    painter.setPen(QPen(color, frameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(picture.adjusted(-out, -out, out, out), pictureRadius, pictureRadius);
}

} // namespace

SelectTmplItemCell& TmplRowPainter::cellFor(const QModelIndex& index) const {
    auto& cell = iCells[index.row()];
    if (!cell) {
        cell = iMakeCell(index.row());
        cell->setTitle(index.data().toString());
    }
    return *cell;
}

void TmplRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const bool selected = is(option, QStyle::State_Selected);
    const QColor highlight = option.palette.color(QPalette::Highlight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (selected || is(option, QStyle::State_MouseOver)) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(selected ? highlight : faded(highlight, 0.15));
        painter->drawRoundedRect(option.rect, rowRadius, rowRadius);
    }
    if (is(option, QStyle::State_HasFocus))
        drawFocus(*painter, option.rect, faded(option.palette.color(QPalette::Text), 0.6));
    if (!index.data(TmplListModel::failureRole).toString().isEmpty()) {
        const QRect badge(option.rect.right() - rowPadding - badgeSide,
                          option.rect.center().y() - badgeSide / 2, badgeSide, badgeSide);
        option.widget->style()
            ->standardIcon(QStyle::SP_MessageBoxWarning, &option, option.widget)
            .paint(painter, badge);
    }
    SelectTmplItemCell& cell = cellFor(index);
    cell.setFont(option.font);
    cell.setHighlighted(selected);
    // A cell's icon is one pixel too low.
    painter->translate(option.rect.x() + rowPadding, option.rect.y() - 1);
    const int width = option.rect.width() - 2 * rowPadding - titlePadding;
    cell.drawInteriorWithFrame(*painter, QRectF(titlePadding, 0, width, option.rect.height()));
    painter->restore();
}

QSize TmplRowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return {QStyledItemDelegate::sizeHint(option, index).width(), SelectTmplItemCell::rowHeight};
}

void TmplStylePainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const bool selected = is(option, QStyle::State_Selected);
    const QColor highlight = option.palette.color(QPalette::Highlight);
    const QString name = index.data().toString();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF picture =
        drawPicture(*painter, option, index.data(Qt::DecorationRole).value<QImage>());
    if (selected)
        drawFrame(*painter, picture, highlight);
    else if (is(option, QStyle::State_MouseOver))
        drawFrame(*painter, picture, faded(highlight, 0.4));
    const QRect label = nameRect(option.rect, option.fontMetrics, name);
    if (selected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(highlight);
        painter->drawRoundedRect(label, label.height() / 2.0, label.height() / 2.0);
    }
    if (is(option, QStyle::State_HasFocus))
        drawFocus(*painter, pictureRect(option.rect).united(label).adjusted(-9, -9, 9, 4),
                  faded(option.palette.color(QPalette::Text), 0.4));
    painter->setFont(option.font);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(
        label, Qt::AlignCenter,
        option.fontMetrics.elidedText(name, Qt::ElideRight, label.width() - 2 * namePadding));
    painter->restore();
}

QSize TmplStylePainter::smallestCell(const QFontMetrics& font) {
    return {pictureSize.width() + 2 * cellPadding, cellPadding + pictureSize.height() + nameGap +
                                                       font.height() + 2 * nameHeightPadding +
                                                       cellPadding / 2};
}

QSize TmplStylePainter::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const {
    const auto* view = qobject_cast<const QListView*>(option.widget);
    return view && view->gridSize().isValid() ? view->gridSize() : smallestCell(option.fontMetrics);
}

bool TmplStylePainter::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                 const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QString name = index.data().toString();
    const int room = pictureSize.width() - 2 * namePadding;
    const bool isCut = QFontMetrics(view->font()).horizontalAdvance(name) > room;
    if (event->type() != QEvent::ToolTip || !index.isValid() || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), name, view);
    return true;
}
