#pragma once

#include <QProxyStyle>

// The toolkit's own style, with lines around fields and boxes that can be seen on a dark window as
// well: it draws them darker than their ground, however dark that is.
class LinedStyle : public QProxyStyle {
public:
    LinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
};
