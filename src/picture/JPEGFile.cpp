#include "picture/JPEGFile.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <turbojpeg.h>

namespace {

constexpr unsigned char startOfImage = 0xD8;
constexpr unsigned char startOfScan = 0xDA;

// Application data, comments: all but what a decoder needs to tell the colours (JFIF, Adobe).
bool isMetadata(unsigned char marker) {
    return (marker > 0xE0 && marker <= 0xEF && marker != 0xEE) || marker == 0xFE;
}

// The nearest edge of a block, or -1 when it is more than a pixel away.
int blockEdge(int offset, int block) {
    const int edge = (offset + block / 2) / block * block;
    return std::abs(edge - offset) <= 1 ? edge : -1;
}

using Handle = std::unique_ptr<void, int (*)(tjhandle)>;

struct Header {
    int width = 0;
    int height = 0;
    int sampling = 0; // TJSAMP
    int space = 0;    // TJCS
};

// None of a file that can't be read.
std::optional<Header> headerOf(JPEGFile::Bytes file, const Handle& handle) {
    Header header;
    const auto length = static_cast<unsigned long>(file.size());
    if (!handle || tjDecompressHeader3(handle.get(), file.data(), length, &header.width,
                                       &header.height, &header.sampling, &header.space) != 0)
        return std::nullopt;
    return header;
}

} // namespace

int JPEGFile::plainComponents(Bytes file) {
    const auto header = headerOf(file, Handle(tjInitDecompress(), tjDestroy));
    if (!header)
        return 0;
    return header->space == TJCS_GRAY ? 1 : header->space == TJCS_YCbCr ? 3 : 0;
}

QByteArray JPEGFile::withoutMetadata(Bytes file) {
    const auto bytes = [file](std::size_t at, std::size_t count) {
        return QByteArray(reinterpret_cast<const char*>(file.data()) + at, qsizetype(count));
    };
    if (file.size() < 4 || file[0] != 0xFF || file[1] != startOfImage)
        return {};
    QByteArray result = bytes(0, 2);
    for (std::size_t at = 2; at + 4 <= file.size() && file[at] == 0xFF;) {
        const unsigned char marker = file[at + 1];
        if (marker == startOfScan)
            return result + bytes(at, file.size() - at);
        const std::size_t size = 2 + (std::size_t{file[at + 2]} << 8 | file[at + 3]);
        if (size < 4 || size > file.size() - at)
            return {};
        if (!isMetadata(marker))
            result += bytes(at, size);
        at += size;
    }
    return {};
}

QByteArray JPEGFile::turned(Bytes file, Turn turn, const QRect& part) {
    const Handle transformer(tjInitTransform(), tjDestroy);
    const auto header = headerOf(file, transformer);
    if (!header)
        return {};
    const auto& [width, height, sampling, space] = *header;
    const bool swapsSides = turn == Turn::transpose || turn == Turn::transverse ||
                            turn == Turn::clockwise || turn == Turn::anticlockwise;
    const QSize block(tjMCUWidth[sampling], tjMCUHeight[sampling]);
    const QSize turnedBlock = swapsSides ? block.transposed() : block;
    const int left = blockEdge(part.x(), turnedBlock.width());
    const int top = blockEdge(part.y(), turnedBlock.height());
    if (left < 0 || top < 0)
        return {};
    const QRect all(QPoint(), swapsSides ? QSize(height, width) : QSize(width, height));
    const QRect kept = QRect({left, top}, part.size()) & all;
    tjtransform change{};
    change.r = {kept.x(), kept.y(), kept.width(), kept.height()};
    change.op = int(turn);
    change.options = TJXOPT_COPYNONE | TJXOPT_PERFECT | (kept == all ? 0 : TJXOPT_CROP);
    unsigned char* output = nullptr;
    unsigned long size = 0;
    const bool isDone =
        tjTransform(transformer.get(), file.data(), static_cast<unsigned long>(file.size()), 1,
                    &output, &size, &change, 0) == 0;
    const std::unique_ptr<unsigned char, void (*)(unsigned char*)> owner(output, tjFree);
    return isDone ? QByteArray(reinterpret_cast<const char*>(output), qsizetype(size))
                  : QByteArray();
}
