#pragma once

#include <QSize>
#include <QString>

namespace ImageSize {

// Width and height of an image file in points (1/72 inch), truncated to integers. Without a
// resolution 72 dots per inch are assumed; unreadable images are 0 by 0. Reads only the header of
// the usual formats.
QSize inPoints(const QString& path);

} // namespace ImageSize
