#include "drawing/WebPageMaker.h"

#include "base/PlatformException.h"
#include "base/Stopwatch.h"
#include "pdf/PDFSerialization.h"
#include "pdf/WebPEncoder.h"
#include "system/Files.h"

#include <algorithm>

namespace {

constexpr double largeScale = 4.0;  // pixels per point, twice those of the page file
constexpr double mediumScale = 3.0; // used when the large one has too many bytes

// The thumbnail panel shows them at most half as wide and high, on double-density screens.
constexpr int thumbnailWidth = 300;
constexpr int thumbnailHeight = 256;
constexpr float thumbnailQuality = 70;

// All files of a page, relative to its page file.
constexpr double maxBytesRatio = 1.5;

// Another format must save a tenth to be worth it.
constexpr double worthwhile = 0.9;

// As sharp as the page file, see bench/sharpness.py.
constexpr float normalQuality = 86;
// Pixels of a large picture are shown a quarter of the size, so artefacts show less.
constexpr float largeQuality = 70;
constexpr float minQuality = 40;

// Text and drawings have runs of equal pixels, photographs don't.
constexpr double minEvenness = 0.6;

// A larger vector picture would take a browser seconds to draw.
constexpr qint64 maxVectorBytes = qint64{1} << 20;

bool fitsWebP(const PageBitmap& bitmap) {
    return std::max(bitmap.width(), bitmap.height()) <= WebPEncoder::maxSide;
}

void write(const QString& path, const QByteArray& data) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    writePageFile(path, {bytes, std::size_t(data.size())});
}

} // namespace

void writePageFile(const QString& path, std::span<const unsigned char> data) {
    Message error;
    if (!Files::writeWorkingFile(path, data, &error))
        throw PlatformException(ErrorKind::pageWrite, Message::about(path, error));
}

PageTiming WebPageMaker::make(const WebPageFiles& files, qint64 pageFileSize) {
    Stopwatch watch;
    const QByteArray text = PDFSerialization::pack(iPage.text());
    iTiming.draw += watch.lap();
    const QByteArray normal = normalPicture(pageFileSize);
    const QByteArray small = thumbnail();
    iTiming.encode += watch.lap();
    const auto writeAll = [&] {
        watch.lap();
        if (!normal.isEmpty())
            write(files.picture, normal);
        write(files.thumbnail, small);
        write(files.text, text);
        iTiming.write += watch.lap();
    };

    // The text's size in the book is close to its packed size.
    const qint64 taken =
        (normal.isEmpty() ? pageFileSize : normal.size()) + small.size() + text.size();
    try {
        makeLarge(files, qint64(maxBytesRatio * double(pageFileSize)) - taken);
    } catch (...) {
        writeAll();
        throw;
    }
    writeAll();
    return iTiming;
}

// Empty when the page file is better.
QByteArray WebPageMaker::normalPicture(qint64 pageFileSize) const {
    if (!fitsWebP(iBitmap))
        return {};
    const auto pays = [&](const QByteArray& data) {
        return double(data.size()) <= worthwhile * double(pageFileSize);
    };
    if (WebPEncoder::evenness(iBitmap) > minEvenness) {
        if (QByteArray data = WebPEncoder::lossless(iBitmap); pays(data))
            return data;
    }
    QByteArray data = WebPEncoder::lossy(iBitmap, normalQuality);
    return pays(data) ? data : QByteArray();
}

QByteArray WebPageMaker::thumbnail() const {
    const double scale = std::min({1.0, double(thumbnailWidth) / iBitmap.width(),
                                   double(thumbnailHeight) / iBitmap.height()});
    const auto side = [&](int length) { return std::max(1, int(length * scale)); };
    return WebPEncoder::reduced(iBitmap, side(iBitmap.width()), side(iBitmap.height()),
                                thumbnailQuality);
}

void WebPageMaker::makeLarge(const WebPageFiles& files, qint64 largest) {
    Stopwatch watch;
    const QByteArray vector = iPage.vectorPicture();
    iTiming.draw += watch.lap();
    if (!vector.isEmpty() && vector.size() <= std::min(largest, maxVectorBytes)) {
        write(files.largeVector, vector);
    } else {
        const QByteArray picture = largePicture(largest);
        if (!picture.isEmpty())
            write(files.largePicture, picture);
    }
    iTiming.encode += watch.lap();
}

// The best picture that fits the limit.
QByteArray WebPageMaker::largePicture(qint64 largest) {
    const int normalWidth = iBitmap.width();
    for (const double scale : {largeScale, mediumScale}) {
        iPage.draw(scale, iBitmap);
        // A page near the bitmap limits can't get any larger.
        if (!fitsWebP(iBitmap) || iBitmap.width() <= normalWidth)
            continue;
        if (WebPEncoder::evenness(iBitmap) > minEvenness) {
            if (QByteArray data = WebPEncoder::lossless(iBitmap); data.size() <= largest)
                return data;
        }
        for (const float quality : {largeQuality, minQuality}) {
            if (QByteArray data = WebPEncoder::lossy(iBitmap, quality); data.size() <= largest)
                return data;
        }
    }
    return {};
}
