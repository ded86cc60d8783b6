#include "output/ImageSize.h"

#include "pages/Book.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>
#include <cmath>
#include <optional>

namespace {

// Metadata comes before the pixels, and an Exif block is at most 64 KB.
constexpr qint64 maxHeadBytes = 1 << 20;

// Reads numbers at offsets of a block; 0 past its end.
class Bytes {
public:
    explicit Bytes(QByteArrayView data, bool bigEndian = true)
        : iData(data), iBigEndian(bigEndian) {}

    quint16 u16(qsizetype at) const { return number<quint16>(at); }
    quint32 u32(qsizetype at) const { return number<quint32>(at); }
    quint8 u8(qsizetype at) const { return number<quint8>(at); }
    Bytes from(qsizetype at, bool bigEndian) const {
        return Bytes(iData.sliced(qMin(at, iData.size())), bigEndian);
    }
    QByteArrayView at(qsizetype offset, qsizetype length) const {
        return has(offset, length) ? iData.sliced(offset, length) : QByteArrayView();
    }
    qsizetype size() const { return iData.size(); }

private:
    bool has(qsizetype at, qsizetype length) const {
        return at >= 0 && length <= iData.size() && at <= iData.size() - length;
    }

    template <typename Number>
    Number number(qsizetype at) const {
        if (!has(at, sizeof(Number)))
            return 0;
        return iBigEndian ? qFromBigEndian<Number>(iData.data() + at)
                          : qFromLittleEndian<Number>(iData.data() + at);
    }

    QByteArrayView iData;
    bool iBigEndian;
};

std::optional<ImageResolution> plausible(double x, double y) {
    if (!(x >= 1 && x <= 100000 && y >= 1 && y <= 100000))
        return std::nullopt;
    return ImageResolution{x, y};
}

// Whole dots per metre are off by up to one: 72 dots per inch are stored as 2835.
double fromDotsPerMeter(quint32 dots) {
    const double exact = dots * 0.0254;
    const double whole = std::round(exact);
    return std::abs(exact - whole) <= 0.0254 ? whole : exact;
}

std::optional<ImageResolution> ofPNG(const Bytes& file) {
    for (qsizetype at = 8; at < file.size();) {
        const qsizetype length = file.u32(at);
        const QByteArrayView type = file.at(at + 4, 4);
        if (type == "pHYs" && file.u8(at + 16) == 1)
            return plausible(fromDotsPerMeter(file.u32(at + 8)),
                             fromDotsPerMeter(file.u32(at + 12)));
        if (type == "IDAT")
            break;
        at += length + 12;
    }
    return std::nullopt;
}

std::optional<ImageResolution> ofBMP(const Bytes& file) {
    return plausible(fromDotsPerMeter(file.u32(38)), fromDotsPerMeter(file.u32(42)));
}

// Reads the first directory of a TIFF file, or of the Exif block of a JPEG file.
std::optional<ImageResolution> ofTIFF(const Bytes& file) {
    const Bytes block = file.from(0, file.at(0, 2) == "MM");
    const qsizetype directory = block.u32(4);
    double x = 0;
    double y = 0;
    int unit = 2;
    for (int entry = 0; entry < block.u16(directory); ++entry) {
        const qsizetype at = directory + 2 + 12 * qsizetype(entry);
        const qsizetype value = block.u32(at + 8);
        const double ratio = double(block.u32(value)) / block.u32(value + 4);
        switch (block.u16(at)) {
        case 0x011A:
            x = ratio;
            break;
        case 0x011B:
            y = ratio;
            break;
        case 0x0128:
            unit = block.u16(at + 8);
            break;
        default:
            break;
        }
    }
    if (unit != 2 && unit != 3)
        return std::nullopt;
    const double perInch = unit == 3 ? 2.54 : 1;
    return plausible(x * perInch, y * perInch);
}

std::optional<ImageResolution> ofJFIF(const Bytes& segment) {
    const int unit = segment.u8(7);
    if (unit != 1 && unit != 2)
        return std::nullopt;
    const double perInch = unit == 2 ? 2.54 : 1;
    return plausible(segment.u16(8) * perInch, segment.u16(10) * perInch);
}

// The JFIF density takes precedence; cameras omit it and write Exif.
std::optional<ImageResolution> ofJPEG(const Bytes& file) {
    std::optional<ImageResolution> found;
    for (qsizetype at = 2; file.u8(at) == 0xFF && !found;) {
        const int marker = file.u8(at + 1);
        const qsizetype length = file.u16(at + 2);
        if (marker == 0xDA || length < 2)
            break;
        const Bytes segment(file.at(at + 4, length - 2));
        if (marker == 0xE0 && segment.at(0, 5) == QByteArrayView("JFIF\0", 5))
            found = ofJFIF(segment);
        else if (marker == 0xE1 && segment.at(0, 6) == QByteArrayView("Exif\0\0", 6))
            found = ofTIFF(segment.from(6, true));
        at += length + 2;
    }
    return found;
}

int inPoints(int pixels, double dotsPerInch) {
    return Book::wholePoints(pixels * 72.0 / dotsPerInch);
}

} // namespace

ImageResolution ImageResolution::ofFile(QIODevice& device) {
    device.seek(0);
    const QByteArray head = device.read(maxHeadBytes);
    std::optional<ImageResolution> found;
    if (head.startsWith("\x89PNG"))
        found = ofPNG(Bytes(head));
    else if (head.startsWith("\xff\xd8"))
        found = ofJPEG(Bytes(head));
    else if (head.startsWith("BM"))
        found = ofBMP(Bytes(head, false));
    else if (head.startsWith("MM") || head.startsWith("II"))
        found = ofTIFF(Bytes(head));
    return found.value_or(ImageResolution());
}

QSize ImageSize::inPoints(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {0, 0};
    const ImageResolution resolution = ImageResolution::ofFile(file);
    file.seek(0);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    QSize pixels = reader.size();
    // Some formats report their size only after decoding.
    if (!pixels.isValid())
        pixels = reader.read().size();
    if (pixels.isEmpty())
        return {0, 0};
    return {::inPoints(pixels.width(), resolution.dotsPerInchX),
            ::inPoints(pixels.height(), resolution.dotsPerInchY)};
}
