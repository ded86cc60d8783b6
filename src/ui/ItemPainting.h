#pragma once

#include <QColor>
#include <QStyleOptionViewItem>

// What the painters of lists share.
namespace ItemPainting {

inline bool is(const QStyleOptionViewItem& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

inline QColor faded(QColor color, qreal opacity) {
    color.setAlphaF(float(opacity));
    return color;
}

} // namespace ItemPainting
