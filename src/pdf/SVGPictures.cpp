#include "pdf/SVGPictures.h"

#include "pdf/PDFImages.h"
#include "pdf/PDFLimits.h"

#include <algorithm>
#include <memory>

namespace {

// They are shown enlarged only, and part of a page that has text as well.
constexpr double jpegFactor = 0.4;

fz_irect pixelsOf(const SVGDrawing& drawing) {
    return fz_irect_from_rect(
        fz_transform_rect(drawing.area, fz_scale(drawing.scale, drawing.scale)));
}

// RGB with alpha, or nullptr when it can't be drawn.
fz_pixmap* drawn(fz_context* ctx, const SVGDrawing& drawing) {
    const fz_irect pixels = pixelsOf(drawing);
    if (fz_is_empty_irect(pixels) ||
        double(pixels.x1 - pixels.x0) * (pixels.y1 - pixels.y0) > PDFLimits::maxBitmapPixels)
        return nullptr;
    fz_pixmap* pixmap = nullptr;
    fz_device* device = nullptr;
    fz_var(pixmap);
    fz_var(device);
    fz_try(ctx) {
        pixmap = fz_new_pixmap_with_bbox(ctx, fz_device_rgb(ctx), pixels, nullptr, 1);
        fz_clear_pixmap(ctx, pixmap);
        device = fz_new_draw_device(ctx, fz_identity, pixmap);
        scaleImagesFast(device);
        drawing.draw(device, fz_scale(drawing.scale, drawing.scale));
        fz_close_device(ctx, device);
    }
    fz_always(ctx) {
        fz_drop_device(ctx, device);
    }
    fz_catch(ctx) {
        fz_drop_pixmap(ctx, pixmap);
        return nullptr;
    }
    return pixmap;
}

// A PNG file, or nullptr.
fz_buffer* pngWithAlpha(fz_context* ctx, fz_pixmap* pixmap) {
    fz_buffer* file = nullptr;
    fz_var(file);
    fz_try(ctx) {
        file = fz_new_buffer_from_pixmap_as_png(ctx, pixmap, fz_default_color_params);
    }
    fz_catch(ctx) {
        return nullptr;
    }
    return file;
}

bool isOpaque(const fz_pixmap& pixmap) {
    for (int y = 0; y < pixmap.h; ++y) {
        const unsigned char* alpha = pixmap.samples + y * pixmap.stride + 3;
        for (int x = 0; x < pixmap.w; ++x, alpha += 4) {
            if (*alpha != 0xFF)
                return false;
        }
    }
    return true;
}

} // namespace

QByteArray SVGPictures::addressOf(const char* type, std::span<const unsigned char> file) {
    const auto* bytes = reinterpret_cast<const char*>(file.data());
    return QByteArray("data:image/") + type + ";base64," +
           QByteArray::fromRawData(bytes, qsizetype(file.size())).toBase64();
}

SVGPictures::Picture SVGPictures::make(fz_context* ctx, const SVGDrawing& drawing) {
    const auto drop = [ctx](fz_pixmap* pixmap) { fz_drop_pixmap(ctx, pixmap); };
    const std::unique_ptr<fz_pixmap, decltype(drop)> pixmap(drawn(ctx, drawing), drop);
    if (!pixmap)
        return {};
    const fz_rect pixels = fz_rect_from_irect(pixelsOf(drawing));
    return {encode(ctx, pixmap.get()),
            fz_transform_rect(pixels, fz_scale(1 / drawing.scale, 1 / drawing.scale))};
}

QByteArray SVGPictures::encode(fz_context* ctx, fz_pixmap* pixmap) {
    if (isOpaque(*pixmap))
        return encodeOpaque(*pixmap);
    const auto drop = [ctx](fz_buffer* file) { fz_drop_buffer(ctx, file); };
    const std::unique_ptr<fz_buffer, decltype(drop)> png(pngWithAlpha(ctx, pixmap), drop);
    return png ? addressOf("png", {png->data, png->len}) : QByteArray();
}

QByteArray SVGPictures::encodeOpaque(const fz_pixmap& pixmap) {
    iBitmap.resize(pixmap.w, pixmap.h, 3);
    unsigned char* to = iBitmap.data();
    for (int y = 0; y < pixmap.h; ++y) {
        const unsigned char* from = pixmap.samples + y * pixmap.stride;
        for (int x = 0; x < pixmap.w; ++x, from += 4, to += 3)
            std::copy_n(from, 3, to);
    }
    iBitmap.dropColourOfGray();
    if (const PaletteBitmap* reduced = iReducer.reduce(iBitmap, {})) {
        const QByteArray png = iPNGEncoder.encode(*reduced);
        return addressOf("png", {reinterpret_cast<const unsigned char*>(png.constData()),
                                 std::size_t(png.size())});
    }
    return addressOf("jpeg", iJPEGEncoder.encode(iBitmap, jpegFactor));
}
