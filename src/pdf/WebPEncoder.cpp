#include "pdf/WebPEncoder.h"

#include "base/PlatformException.h"

#include <QSize>
#include <algorithm>
#include <cstdint>
#include <memory>
#include <webp/encode.h>

namespace {

[[noreturn]] void fail() {
    throw PlatformException(ErrorKind::webpEncode,
                            QStringLiteral("the picture can't be encoded as WebP"));
}

// libwebp takes RGB only.
void importPixels(WebPPicture& picture, const PageBitmap& bitmap) {
    if (bitmap.components() == 3) {
        if (!WebPPictureImportRGB(&picture, bitmap.data(), bitmap.stride()))
            fail();
        return;
    }
    if (!WebPPictureAlloc(&picture))
        fail();
    constexpr std::uint32_t opaque = 0xFF000000;
    constexpr std::uint32_t toColour = 0x00010101;
    for (int y = 0; y < bitmap.height(); ++y) {
        const unsigned char* from = bitmap.data() + std::ptrdiff_t(y) * bitmap.stride();
        std::uint32_t* to = picture.argb + std::ptrdiff_t(y) * picture.argb_stride;
        std::transform(from, from + bitmap.width(), to,
                       [](unsigned char gray) { return opaque | (gray * toColour); });
    }
}

QByteArray encode(const PageBitmap& bitmap, const WebPConfig& config, QSize size = {}) {
    WebPPicture picture;
    if (!WebPPictureInit(&picture))
        fail();
    const std::unique_ptr<WebPPicture, decltype(&WebPPictureFree)> freePicture(&picture,
                                                                               WebPPictureFree);
    WebPMemoryWriter writer;
    WebPMemoryWriterInit(&writer);
    const std::unique_ptr<WebPMemoryWriter, decltype(&WebPMemoryWriterClear)> freeWriter(
        &writer, WebPMemoryWriterClear);
    picture.use_argb = 1;
    picture.width = bitmap.width();
    picture.height = bitmap.height();
    picture.writer = WebPMemoryWrite;
    picture.custom_ptr = &writer;
    importPixels(picture, bitmap);
    if (!size.isEmpty() && !WebPPictureRescale(&picture, size.width(), size.height()))
        fail();
    if (!WebPEncode(&config, &picture))
        fail();
    return {reinterpret_cast<const char*>(writer.mem), qsizetype(writer.size)};
}

WebPConfig lossyConfig(float quality) {
    WebPConfig config;
    if (!WebPConfigPreset(&config, WEBP_PRESET_DEFAULT, quality))
        fail();
    // Method 2 of 0 to 6; higher ones take much longer for little gain.
    config.method = 2;
    return config;
}

} // namespace

QByteArray WebPEncoder::lossless(const PageBitmap& bitmap) {
    WebPConfig config;
    // Level 1 of 0 to 9: the next ones take twice the time for a few percent of the size.
    if (!WebPConfigInit(&config) || !WebPConfigLosslessPreset(&config, 1))
        fail();
    return encode(bitmap, config);
}

QByteArray WebPEncoder::lossy(const PageBitmap& bitmap, float quality) {
    return encode(bitmap, lossyConfig(quality));
}

QByteArray WebPEncoder::reduced(const PageBitmap& bitmap, int width, int height, float quality) {
    return encode(bitmap, lossyConfig(quality), {width, height});
}

double WebPEncoder::evenness(const PageBitmap& bitmap) {
    const int components = bitmap.components();
    std::size_t same = 0;
    std::size_t all = 0;
    constexpr int rowStep = 4;
    for (int y = 0; y < bitmap.height(); y += rowStep) {
        const unsigned char* row = bitmap.data() + std::ptrdiff_t(y) * bitmap.stride();
        for (int x = 1; x < bitmap.width(); ++x) {
            const unsigned char* pixel = row + std::ptrdiff_t(x) * components;
            same += std::equal(pixel, pixel + components, pixel - components) ? 1 : 0;
        }
        all += std::size_t(std::max(0, bitmap.width() - 1));
    }
    return all == 0 ? 1.0 : double(same) / double(all);
}
