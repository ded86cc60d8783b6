#include "picture/JPEGEncoder.h"

#include "base/PlatformException.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <turbojpeg.h>

namespace {

// At 90 text can't be distinguished from the original; at 25 text of 10 points is still easy to
// read, and below that glyphs start to break up.
constexpr int bestQuality = 90;
constexpr int lowestQuality = 25;

// 4:2:0 chroma subsampling saves a third of the time and a quarter of the file size, and shows only
// where saturated colours meet within two pixels: coloured text and line art. Those are detected by
// the colour difference inside blocks of 2 by 2 pixels; a handful of such blocks is noise. Checking
// every other row of blocks is enough: glyphs are taller than that.
constexpr int visibleColourStep = 128;
constexpr std::size_t toleratedBlocks = 32;

int colourStep(const unsigned char* a, const unsigned char* b) {
    const int redness = (a[0] - a[1]) - (b[0] - b[1]);
    const int blueness = (a[2] - a[1]) - (b[2] - b[1]);
    return std::max(std::abs(redness), std::abs(blueness));
}

bool needsFullColour(const PageBitmap& bitmap) {
    std::size_t blocks = 0;
    for (int y = 0; y + 1 < bitmap.height(); y += 4) {
        const unsigned char* upper = bitmap.data() + std::size_t(y) * std::size_t(bitmap.stride());
        const unsigned char* lower = upper + bitmap.stride();
        for (int x = 0; x + 1 < bitmap.width(); x += 2, upper += 6, lower += 6) {
            const int step = std::max(colourStep(upper, lower + 3), colourStep(upper + 3, lower));
            blocks += step > visibleColourStep ? 1U : 0U;
        }
        if (blocks > toleratedBlocks)
            return true;
    }
    return false;
}

} // namespace

struct JPEGEncoder::State {
    tjhandle compressor = nullptr;
    std::unique_ptr<unsigned char[]> buffer;
    unsigned long capacity = 0;
};

JPEGEncoder::JPEGEncoder() : iState(std::make_unique<State>()) {
    iState->compressor = tjInitCompress();
    if (!iState->compressor)
        throw std::bad_alloc();
}

JPEGEncoder::~JPEGEncoder() {
    tjDestroy(iState->compressor);
}

std::span<const unsigned char> JPEGEncoder::encode(const PageBitmap& bitmap, double factor) {
    const int quality =
        lowestQuality +
        int(std::lround((bestQuality - lowestQuality) * std::clamp(factor, 0., 1.)));
    const bool gray = bitmap.components() == 1;
    int sampling = TJSAMP_GRAY;
    if (!gray)
        sampling = factor >= 1 && needsFullColour(bitmap) ? TJSAMP_444 : TJSAMP_420;
    const unsigned long bound = tjBufSize(bitmap.width(), bitmap.height(), sampling);
    if (bound > iState->capacity) {
        iState->buffer.reset(new unsigned char[bound]);
        iState->capacity = bound;
    }
    unsigned char* output = iState->buffer.get();
    unsigned long size = iState->capacity;
    if (tjCompress2(iState->compressor, bitmap.data(), bitmap.width(), bitmap.stride(),
                    bitmap.height(), gray ? TJPF_GRAY : TJPF_RGB, &output, &size, sampling, quality,
                    TJFLAG_NOREALLOC | TJFLAG_ACCURATEDCT) != 0) {
        throw PlatformException(ErrorKind::jpegEncode,
                                QString::fromUtf8(tjGetErrorStr2(iState->compressor)));
    }
    return {output, size};
}
