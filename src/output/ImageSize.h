#pragma once

#include <QSize>
#include <QString>

class QIODevice;

// The resolution stored in an image file's header. Qt's reader can't distinguish a file that states
// 96 dots per inch from one that states nothing.
struct ImageResolution {
    double dotsPerInchX = 72;
    double dotsPerInchY = 72;

    // Supports PNG, JPEG (including Exif), TIFF and BMP; 72 for anything else. The device is read
    // from its start.
    static ImageResolution ofFile(QIODevice& device);
};

namespace ImageSize {

// Width and height of an image file in points (1/72 inch), truncated to integers. Without a
// resolution 72 dots per inch are assumed; unreadable images are 0 by 0. Reads only the header of
// the usual formats.
QSize inPoints(const QString& path);

} // namespace ImageSize
