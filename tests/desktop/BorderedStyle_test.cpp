#include "app/desktop/Appearance.h"
#include "app/desktop/BorderedStyle.h"

#include <QtWidgets>
#include <gtest/gtest.h>

// The brightest line of an empty control against its own ground, in a dark window.
static int contrast(QWidget& control) {
    BorderedStyle style;
    control.setStyle(&style);
    control.setPalette(Appearance::palette(true));
    control.resize(60, 24);
    const QImage image = control.grab().toImage();
    int brightest = 0;
    for (int x = 0; x < image.width(); ++x)
        brightest = std::max(brightest, image.pixelColor(x, image.height() / 2).lightness());
    control.setStyle(nullptr);
    return brightest - Appearance::palette(true).color(QPalette::Window).lightness();
}

TEST(BorderedStyle, EmptyControlsCanBeSeenInADarkWindow) {
    QCheckBox box;
    QRadioButton radio;
    QLineEdit field;
    for (QWidget* control : std::initializer_list<QWidget*>{&box, &radio, &field})
        EXPECT_GT(contrast(*control), 45) << control->metaObject()->className();
}
