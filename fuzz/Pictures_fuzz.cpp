#include "Fuzz.h"
#include "output/ImageSize.h"
#include "picture/JPEGDamage.h"
#include "picture/JPEGFile.h"
#include "picture/PictureHeader.h"

#include <QBuffer>
#include <cmath>

namespace {

constexpr int mostPixels = 1 << 16; // the coefficients of a picture take memory

void checkTurned(JPEGFile::Bytes file, QSize size) {
    for (int turn = 0; turn < 8; ++turn) {
        const QSize half = size / 2;
        const QByteArray turned = JPEGFile::turned(file, JPEGFile::Turn(turn), {QPoint(), half});
        const QSize got = PictureHeader::sizeOfJPEG(turned);
        Fuzz::require(turned.isEmpty() || !got.isEmpty(), "a part of a picture is one");
        Fuzz::require(got.width() <= half.width() && got.height() <= half.height(),
                      "a part is no larger than it was to be");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QByteArray file = Fuzz::Input(data, size).rest();
    const QSize jpeg = PictureHeader::sizeOfJPEG(file);
    Fuzz::require(jpeg.isEmpty() || PictureHeader::sizeOfPNG(file).isEmpty(), "one kind only");
    for (const auto isWhole : {PictureHeader::isWholePNG, PictureHeader::isWholeJPEG})
        Fuzz::require(!isWhole(file) || (!isWhole(file + 'x') && !isWhole(file.chopped(1))),
                      "a whole picture ends with its file");
    const QByteArray plain = JPEGFile::withoutMetadata({data, size});
    if (!plain.isEmpty()) {
        const JPEGFile::Bytes rest(reinterpret_cast<const unsigned char*>(plain.constData()),
                                   std::size_t(plain.size()));
        Fuzz::require(plain.size() <= file.size(), "metadata are left out, nothing is added");
        Fuzz::require(JPEGFile::withoutMetadata(rest) == plain, "all metadata are left out");
        Fuzz::require(JPEGDamage::isIn(rest) == JPEGDamage::isIn({data, size}),
                      "no damage is done");
        Fuzz::require(PictureHeader::sizeOfJPEG(plain) == jpeg, "the picture stays");
    }
    if (!jpeg.isEmpty() && jpeg.width() <= mostPixels / jpeg.height())
        checkTurned({data, size}, jpeg);

    QBuffer device(&file);
    device.open(QIODevice::ReadOnly);
    const auto [x, y] = ImageResolution::ofFile(device);
    for (const double resolution : {x, y})
        Fuzz::require(std::isfinite(resolution) && resolution > 0, "a resolution is a number");
    const QSize points = ImageSize::inPoints(Fuzz::fileWith(file));
    Fuzz::require(points.width() >= 0 && points.height() >= 0, "a picture has a size, or none");
    return 0;
}
