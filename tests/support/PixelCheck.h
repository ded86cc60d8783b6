#pragma once

#include <QColor>
#include <QImage>
#include <cstdlib>

// The colour of a picture at a place given as fractions of its width and height.
inline QColor colourAt(const QImage& image, double x, double y) {
    return image.pixelColor(int(x * image.width()), int(y * image.height()));
}

// JPEG files come close to a colour, not exactly to it.
inline bool isNear(const QColor& colour, const QColor& expected) {
    return std::abs(colour.red() - expected.red()) < 12 &&
           std::abs(colour.green() - expected.green()) < 12 &&
           std::abs(colour.blue() - expected.blue()) < 12;
}
