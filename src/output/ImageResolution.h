#pragma once

class QIODevice;

// The resolution that an image file states in its head. Qt's own reader can't tell a file that
// states 96 dots per inch from one that states nothing.
struct ImageResolution {
    double dotsPerInchX = 72;
    double dotsPerInchY = 72;

    // Knows PNG, JPEG (with the Exif of cameras), TIFF and BMP; 72 for anything else. The device is
    // read from its start.
    static ImageResolution ofFile(QIODevice& device);
};
