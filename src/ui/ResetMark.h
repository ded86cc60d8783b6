#pragma once

#include <QRect>

class QPainter;
class QStyleOptionViewItem;

// The sign at the right end of a setting's title that says that its value is not the default, and
// sets it back when clicked. Collapsed groups have a dot for those in them.
namespace ResetMark {

// The width that a title leaves free for it.
inline constexpr int width = 22;

// Where it is drawn and clicked, in the cell of the title.
QRect rectIn(const QRect& title);
void paint(QPainter& painter, const QStyleOptionViewItem& option, bool isHovered);
void paintDot(QPainter& painter, const QStyleOptionViewItem& option);

} // namespace ResetMark
