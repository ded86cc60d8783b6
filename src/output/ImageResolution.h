#pragma once

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
