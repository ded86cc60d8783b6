#include "drawing/WebPageMaker.h"

#include "base/PlatformException.h"
#include "base/Stopwatch.h"
#include "pdf/PDFSerialization.h"
#include "picture/PhotographMark.h"
#include "system/Files.h"

#include <QFileInfo>
#include <algorithm>
#include <libyuv/scale.h>
#include <libyuv/scale_rgb.h>

namespace {

// The thumbnail panel shows them at most half as wide and high, on double-density screens.
constexpr int thumbnailWidth = 300;
constexpr int thumbnailHeight = 256;
constexpr double thumbnailFactor = 0.45;

// Pixels per point of enlarged pages, twice those of the page's picture; with photographs, which
// take more bytes, less.
constexpr double largeScale = 4.0;
constexpr double largePhotographScale = 3.0;
constexpr double largePhotographFactor = 0.4;

// An enlarged picture with hardly more pixels than the page's own is not worth its bytes.
constexpr double worthwhile = 1.15;

// The most bytes of an enlarged picture, times those of the page's other files: they are few for a
// page of few colours.
constexpr double maxRatio = 2.0;
constexpr double maxPhotographRatio = 1.0;

// Mean of the squared error of a sample that nobody sees along the edges of text and lines. JPEG of
// the best quality has 2.5 on a page of text.
constexpr double maxSquaredError = 3.0;

// An image may have shades that are no gradient, and yet none to spare.
ColourReducer::Tolerance toleranceFor(const PageDetail& detail) {
    if (detail.imageScale > 0)
        return {};
    return {maxSquaredError, detail.hasShades};
}

std::span<const unsigned char> bytesOf(const QByteArray& data) {
    return {reinterpret_cast<const unsigned char*>(data.constData()), std::size_t(data.size())};
}

// Writes the file and returns its size.
qint64 write(const QString& path, std::span<const unsigned char> data, PageTiming& timing) {
    Stopwatch watch;
    writePageFile(path, data);
    timing.write += watch.lap();
    return qint64(data.size());
}

void reduce(const PageBitmap& from, PageBitmap& to, int width, int height) {
    to.resize(width, height, from.components());
    if (from.components() == 1)
        libyuv::ScalePlane(from.data(), from.stride(), from.width(), from.height(), to.data(),
                           to.stride(), width, height, libyuv::kFilterBox);
    else
        libyuv::RGBScale(from.data(), from.stride(), from.width(), from.height(), to.data(),
                         to.stride(), width, height, libyuv::kFilterBox);
}

// The page's text, packed.
QByteArray contentOf(const DrawablePage& page) {
    return PDFSerialization::pack(PDFPageContent{page.text(), page.marks()});
}

} // namespace

void writePageFile(const QString& path, std::span<const unsigned char> data) {
    Message error;
    if (!Files::writeWorkingFile(path, data, &error))
        throw PlatformException(ErrorKind::pageWrite, Message::about(path, error));
}

void WebPageMaker::makeOthers(const DrawablePage& page, PageBitmap& bitmap, qint64 pictureSize,
                              const WebPageFiles& files, PageTiming& timing) {
    const qint64 size = pictureSize + makeThumbnail(bitmap, files.thumbnail, timing);
    Stopwatch watch;
    const QByteArray text = contentOf(page);
    timing.draw += watch.lap();
    const auto writeText = [&] { write(files.text, bytesOf(text), timing); };
    try {
        // The text's size in the book is close to its packed size.
        makeLarge(page, bitmap, files, size + text.size(), timing);
    } catch (...) {
        writeText();
        throw;
    }
    writeText();
}

void WebPageMaker::makeText(const DrawablePage& page, const WebPageFiles& files,
                            PageTiming& timing) {
    Stopwatch watch;
    const QByteArray text = contentOf(page);
    timing.draw += watch.lap();
    write(files.text, bytesOf(text), timing);
}

qint64 WebPageMaker::makePicture(const DrawablePage& page, const PageBitmap& bitmap,
                                 const WebPageFiles& files, PageTiming& timing) {
    Stopwatch watch;
    iDetail = page.detail();
    if (const PaletteBitmap* reduced = iReducer.reduce(bitmap, toleranceFor(iDetail))) {
        const QByteArray png = iPNGEncoder.encode(*reduced);
        timing.encode += watch.lap();
        return write(files.picture, bytesOf(png), timing);
    }
    if (const qint64 size = QFileInfo(files.pageFile).size(); size > 0)
        return size;
    const auto jpeg = iEncoder.encode(bitmap, iFactor);
    timing.encode += watch.lap();
    return write(files.pageFile, jpeg, timing);
}

qint64 WebPageMaker::makeThumbnail(const PageBitmap& bitmap, const QString& path,
                                   PageTiming& timing) {
    Stopwatch watch;
    const double scale = std::min(
        {1.0, double(thumbnailWidth) / bitmap.width(), double(thumbnailHeight) / bitmap.height()});
    const auto side = [&](int length) { return std::max(1, int(length * scale)); };
    reduce(bitmap, iThumbnail, side(bitmap.width()), side(bitmap.height()));
    const auto jpeg = iEncoder.encode(iThumbnail, thumbnailFactor);
    const QByteArray marked =
        PhotographMark::isPhotograph(iThumbnail) ? PhotographMark::marked(jpeg) : QByteArray();
    timing.encode += watch.lap();
    return write(path, marked.isNull() ? jpeg : bytesOf(marked), timing);
}

// Of a page that is one scan with more pixels than the page's picture: as the scanner made it.
bool WebPageMaker::makeScan(const DrawablePage& page, PageBitmap& bitmap, const WebPageFiles& files,
                            qint64 largest, PageTiming& timing) {
    if (iDetail.hasOutlines || iDetail.imageScale * page.width() < worthwhile * bitmap.width())
        return false;
    Stopwatch watch;
    const QByteArray jpeg = page.scannedJPEG();
    if (!jpeg.isEmpty() && jpeg.size() <= largest) {
        write(files.largePhotograph, bytesOf(jpeg), timing);
        return true;
    }
    if (!page.drawScannedInk(bitmap))
        return false;
    timing.draw += watch.lap();
    const PaletteBitmap* reduced = iReducer.reduce(bitmap, {});
    const QByteArray png = reduced ? iPNGEncoder.encode(*reduced) : QByteArray();
    timing.encode += watch.lap();
    if (reduced && png.size() <= largest)
        write(files.largePicture, bytesOf(png), timing);
    return true;
}

// Of what shows more than the page's picture.
void WebPageMaker::makeLarge(const DrawablePage& page, PageBitmap& bitmap,
                             const WebPageFiles& files, qint64 taken, PageTiming& timing) {
    Stopwatch watch;
    const bool isPhotograph = !QFileInfo::exists(files.picture);
    const auto largest = qint64(double(taken) * (isPhotograph ? maxPhotographRatio : maxRatio));
    const bool hasVectors = iDetail.hasOutlines || !iDetail.hasShades;
    const QByteArray vectors = hasVectors ? iVectorEncoder.encode(page, largest) : QByteArray();
    timing.encode += watch.lap();
    if (!vectors.isEmpty()) {
        write(files.largeVector, bytesOf(vectors), timing);
        return;
    }
    if (makeScan(page, bitmap, files, largest, timing))
        return;
    const double most = isPhotograph ? largePhotographScale : largeScale;
    const double scale = iDetail.hasOutlines ? most : std::min(most, iDetail.imageScale);
    const int width = bitmap.width();
    if (scale * page.width() < worthwhile * width)
        return;
    page.draw(scale, bitmap);
    timing.draw += watch.lap();
    if (bitmap.width() < worthwhile * width)
        return;
    if (const PaletteBitmap* reduced =
            isPhotograph ? nullptr : iReducer.reduce(bitmap, toleranceFor(iDetail))) {
        const QByteArray png = iPNGEncoder.encode(*reduced);
        timing.encode += watch.lap();
        if (png.size() <= largest)
            write(files.largePicture, bytesOf(png), timing);
        return;
    }
    const auto jpeg = iEncoder.encode(bitmap, largePhotographFactor);
    timing.encode += watch.lap();
    if (qint64(jpeg.size()) <= largest)
        write(files.largePhotograph, jpeg, timing);
}
