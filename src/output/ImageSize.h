#pragma once

#include <QSize>
#include <QString>

namespace ImageSize {

// Width and height of an image file in points (1/72 inch), cut to whole numbers. An image that
// doesn't say its resolution has 72 dots per inch; one that can't be read is 0 by 0. Reads no more
// than the head of the file for the usual formats.
QSize inPoints(const QString& path);

} // namespace ImageSize
