#include "picture/PhotographMark.h"

#include <QtEndian>
#include <algorithm>

namespace {

constexpr int nearWhite = 215;

// A JPEG comment: marker, length, text.
constexpr QByteArrayView mark("\xff\xfe\0\x0cphotograph", 14);

// Behind the JFIF header, which must be the first segment.
qsizetype placeOfMark(QByteArrayView jpeg) {
    constexpr qsizetype start = 2;
    constexpr QByteArrayView header("\xff\xd8\xff\xe0");
    if (jpeg.size() < PhotographMark::headSize || !jpeg.startsWith(header))
        return start;
    return start + 2 + qFromBigEndian<quint16>(jpeg.data() + header.size());
}

} // namespace

bool PhotographMark::isPhotograph(const PageBitmap& page) {
    const auto pixels = std::size_t(page.width()) * std::size_t(page.height());
    const auto components = std::size_t(page.components());
    std::size_t white = 0;
    for (std::size_t i = 0; i < pixels; ++i) {
        const unsigned char* pixel = page.data() + i * components;
        white += *std::min_element(pixel, pixel + components) > nearWhite ? 1U : 0U;
    }
    return white * 5 < pixels;
}

QByteArray PhotographMark::marked(std::span<const unsigned char> jpeg) {
    QByteArray result(reinterpret_cast<const char*>(jpeg.data()), qsizetype(jpeg.size()));
    return result.insert(placeOfMark(result), mark);
}

bool PhotographMark::isMarked(QByteArrayView head) {
    const qsizetype place = placeOfMark(head);
    return place <= head.size() && head.sliced(place).startsWith(mark);
}
