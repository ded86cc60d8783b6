#include "picture/PictureHeader.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <libdeflate.h>
#include <memory>
#include <turbojpeg.h>

namespace {

// Of the parts that PNGEncoder writes: after others a browser may look for what they mean.
constexpr std::array<QByteArrayView, 5> knownChunks{"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};

constexpr QByteArrayView endOfImage("\xff\xd9");

} // namespace

QSize PictureHeader::sizeOfJPEG(QByteArrayView head) {
    const std::unique_ptr<void, int (*)(tjhandle)> reader(tjInitDecompress(), tjDestroy);
    int width = 0;
    int height = 0;
    int sampling = 0;
    int space = 0;
    const auto* bytes = reinterpret_cast<const unsigned char*>(head.data());
    if (!reader || !head.startsWith("\xff\xd8") ||
        tjDecompressHeader3(reader.get(), bytes, static_cast<unsigned long>(head.size()), &width,
                            &height, &sampling, &space) != 0)
        return {};
    return {width, height};
}

QSize PictureHeader::sizeOfPNG(QByteArrayView head) {
    constexpr QByteArrayView start("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    constexpr qsizetype checkedFrom = 12; // the name of the chunk
    constexpr qsizetype checksum = 29;
    if (head.size() < checksum + 4 || !head.startsWith(start))
        return {};
    const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(head.data() + at); };
    if (libdeflate_crc32(0, head.data() + checkedFrom, std::size_t(checksum - checkedFrom)) !=
        number(checksum))
        return {};
    return {int(number(16)), int(number(20))};
}

// A marker is 0xff and its kind; what follows has its own length in front, up to the start of scan
// (0xda), behind which each 0xff of the data is made to look like no marker.
bool PictureHeader::isWholeJPEG(QByteArrayView file) {
    qsizetype at = 2;
    while (at + 4 <= file.size() && file[at] == '\xff' && file[at + 1] != '\xda')
        at += 2 + qFromBigEndian<quint16>(file.data() + at + 2);
    return at + 4 <= file.size() && file[at] == '\xff' &&
           file.indexOf(endOfImage, at) == file.size() - endOfImage.size();
}

// Each chunk is a length, a name, the data and a checksum.
bool PictureHeader::isWholePNG(QByteArrayView file) {
    constexpr qsizetype signature = 8;
    constexpr qsizetype frame = 12;
    qsizetype at = signature;
    while (at + frame <= file.size()) {
        const QByteArrayView name = file.sliced(at + 4, 4);
        if (std::find(knownChunks.begin(), knownChunks.end(), name) == knownChunks.end())
            return false;
        at += frame + qsizetype(qFromBigEndian<quint32>(file.data() + at));
        if (name == "IEND")
            return at == file.size();
    }
    return false;
}
