#include "picture/PNGEncoder.h"

#include <QtEndian>

namespace {

void appendNumber(QByteArray& to, quint32 number) {
    number = qToBigEndian(number);
    to.append(reinterpret_cast<const char*>(&number), sizeof(number));
}

void appendChunk(QByteArray& to, const char* type, const QByteArray& data) {
    appendNumber(to, quint32(data.size()));
    const qsizetype start = to.size();
    to.append(type, 4);
    to.append(data);
    appendNumber(to, libdeflate_crc32(0, to.constData() + start, std::size_t(to.size() - start)));
}

QByteArray headerOf(const PaletteBitmap& bitmap) {
    constexpr char coloursOfPalette = 3;
    QByteArray header;
    appendNumber(header, quint32(bitmap.width));
    appendNumber(header, quint32(bitmap.height));
    header.append(char(bitmap.bitsPerPixel)).append(coloursOfPalette);
    return header.append(3, '\0'); // compression, filter and interlace methods
}

} // namespace

QByteArray PNGEncoder::encode(const PaletteBitmap& bitmap) {
    const std::string_view rows(reinterpret_cast<const char*>(bitmap.rows.data()),
                                bitmap.rows.size());
    const auto* colours = reinterpret_cast<const char*>(bitmap.palette.data());
    QByteArray file("\x89PNG\r\n\x1A\n");
    appendChunk(file, "IHDR", headerOf(bitmap));
    appendChunk(file, "PLTE",
                {colours, qsizetype(sizeof(PaletteBitmap::Colour) * bitmap.palette.size())});
    const bool isLarge = bitmap.bitsPerPixel == 8;
    appendChunk(file, "IDAT", isLarge ? iFastDeflater.zlib(rows) : iDeflater.zlib(rows));
    appendChunk(file, "IEND", {});
    return file;
}
