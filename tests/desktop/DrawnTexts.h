#pragma once

#include <QRectF>
#include <QString>
#include <vector>

class QWidget;

// What stands in a picture of a widget. It is drawn onto a device that takes note of its texts, so
// that it does not matter how a widget, a style or a delegate comes to draw them.
struct DrawnText {
    QString text;
    QRectF place;          // in the drawn widget
    const QWidget* widget; // whose text it is

    // Of the widget and all in it that is visible, in the order in which they are drawn.
    static std::vector<DrawnText> in(QWidget& widget);
};
