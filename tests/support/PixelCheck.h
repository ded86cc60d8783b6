#pragma once

#include "picture/PageBitmap.h"

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

// Valid as long as the bitmap is.
inline QImage imageOf(const PageBitmap& bitmap) {
    return QImage(bitmap.data(), bitmap.width(), bitmap.height(), bitmap.stride(),
                  bitmap.components() == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
}

// Small differences are due to rounding along edges: what counts is what a reader sees from afar.
inline QImage fromAfar(const QImage& image, QSize size) {
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The largest difference of a channel.
inline int difference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            for (const int shift : {0, 8, 16}) {
                const auto channel = [&](const QImage& image) {
                    return int(image.pixel(x, y) >> shift & 0xFF);
                };
                largest = std::max(largest, std::abs(channel(a) - channel(b)));
            }
        }
    }
    return largest;
}
