#include "ui/ResetMark.h"

#include "ui/Icons.h"

#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

constexpr int iconSize = 14;
constexpr qreal dotRadius = 2.5;
constexpr float hoverOpacity = 0.18F;

QColor inkOf(const QStyleOptionViewItem& option) {
    return option.palette.color(
        option.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Link);
}

} // namespace

QRect ResetMark::rectIn(const QRect& title) {
    return {title.right() - width + 1, title.top(), width, title.height()};
}

void ResetMark::paint(QPainter& painter, const QStyleOptionViewItem& option, bool isHovered) {
    QRect icon(0, 0, iconSize, iconSize);
    icon.moveCenter(rectIn(option.rect).center());
    const QColor ink = inkOf(option);
    if (isHovered) {
        QColor ground = ink;
        ground.setAlphaF(hoverOpacity);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(icon.adjusted(-3, -3, 3, 3), 4, 4);
        painter.restore();
    }
    Icons::icon(QStringLiteral("reset"), ink).paint(&painter, icon);
}

void ResetMark::paintDot(QPainter& painter, const QStyleOptionViewItem& option) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(inkOf(option));
    painter.drawEllipse(QRectF(rectIn(option.rect)).center(), dotRadius, dotRadius);
    painter.restore();
}
