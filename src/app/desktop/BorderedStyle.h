#pragma once

#include <QProxyStyle>

// Qt's Fusion style with borders around fields and boxes that are visible on a dark window, too:
// Fusion draws them darker than their background, however dark that is. A border also marks the
// current row of a list.
class BorderedStyle : public QProxyStyle {
public:
    BorderedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    // Buttons of dialogs are without icons.
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr,
                  QStyleHintReturn* returned = nullptr) const override;
    // Replaces the icons of message boxes; without an icon theme Qt's are very old.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};
