#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

// Pictures made by rule instead of by a camera, with a photograph's mix of soft gradients, edges
// and grain. One seed gives one picture.
namespace Pictures {

// A landscape of sky, sun and mountain ridges; rows of RGB without padding.
QByteArray landscape(QSize size, unsigned seed);
QImage landscapeImage(QSize size, unsigned seed);
// The same in shades of gray.
QByteArray grayLandscape(QSize size, unsigned seed);

// Grain that changes from pixel to pixel, -128 to 127, for any coordinates.
int grain(int x, int y, unsigned seed);

} // namespace Pictures
