#include "picture/PictureHeader.h"

#include <QtEndian>
#include <libdeflate.h>
#include <memory>
#include <turbojpeg.h>

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
