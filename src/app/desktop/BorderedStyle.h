#pragma once

#include <QProxyStyle>

// The toolkit's own style, with lines around fields and boxes that can be seen on a dark window as
// well: it draws them darker than their ground, however dark that is. A line alone shows which line
// of a list has the keyboard.
class BorderedStyle : public QProxyStyle {
public:
    BorderedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    // Those of message boxes are drawn by us; a system without a theme has very old ones.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};
