#include "pdf/PDFImages.h"

#include "pdf/PDFEngine.h"
#include "pdf/PDFLimits.h"
#include "picture/JPEGDamage.h"

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <libyuv/convert_argb.h>
#include <libyuv/convert_from_argb.h>
#include <libyuv/planar_functions.h>
#include <libyuv/scale.h>
#include <libyuv/scale_argb.h>
#include <memory>
#include <new>
#include <turbojpeg.h>

namespace {

using FillImage = decltype(fz_device::fill_image);

// fill_image of MuPDF's draw device; the same function for all of them.
std::atomic<FillImage> defaultFillImage{nullptr};

// Samples of an image, rows without padding: one, three or four bytes a pixel; the fourth byte
// beside three components is unused. data is null when memory ran out: no exception may pass
// through MuPDF's C functions.
struct Samples {
    std::unique_ptr<unsigned char[]> data;
    int width = 0;
    int height = 0;
    int bytesPerPixel = 0;

    int stride() const { return width * bytesPerPixel; }
};

Samples makeSamples(int width, int height, int bytesPerPixel) {
    const std::size_t size = std::size_t(width) * std::size_t(height) * std::size_t(bytesPerPixel);
    return {std::unique_ptr<unsigned char[]>(new (std::nothrow) unsigned char[size]), width, height,
            bytesPerPixel};
}

// The smallest size that the JPEG decoder produces cheaply and that is at least the wanted size.
tjscalingfactor decodeScale(int width, int height, int wantedWidth, int wantedHeight) {
    for (const int divisor : {8, 4, 2}) {
        const tjscalingfactor factor{1, divisor};
        if (TJSCALED(width, factor) >= wantedWidth && TJSCALED(height, factor) >= wantedHeight)
            return factor;
    }
    return {1, 1};
}

// Whether the decoded bytes are the image's samples without further conversion.
bool isPlainJPEG(const fz_image* image, const fz_compressed_buffer* buffer) {
    return buffer && buffer->params.type == FZ_IMAGE_JPEG &&
           buffer->params.u.jpeg.color_transform == -1 && !image->use_decode &&
           !image->use_colorkey && image->bpc == 8 && (image->n == 1 || image->n == 3);
}

// Decodes an image that is a plain JPEG file; empty for others and for damaged ones.
Samples decodeJPEG(fz_context* ctx, fz_image* image, int wantedWidth, int wantedHeight) {
    const std::span<const unsigned char> file = plainJPEG(ctx, image);
    const std::unique_ptr<void, int (*)(tjhandle)> decoder(tjInitDecompress(), tjDestroy);
    if (file.empty() || !decoder)
        return {};
    const tjscalingfactor factor = decodeScale(image->w, image->h, wantedWidth, wantedHeight);
    Samples samples =
        makeSamples(TJSCALED(image->w, factor), TJSCALED(image->h, factor), image->n == 1 ? 1 : 4);
    if (tjDecompress2(decoder.get(), file.data(), static_cast<unsigned long>(file.size()),
                      samples.data.get(), samples.width, samples.stride(), samples.height,
                      image->n == 1 ? TJPF_GRAY : TJPF_RGBX, 0) != 0)
        return {};
    return samples;
}

// MuPDF drops libjpeg's warnings of data that end early or make no sense.
void warnOfDamage(fz_context* ctx, fz_image* image) {
    const fz_compressed_buffer* buffer = image ? fz_compressed_image_buffer(ctx, image) : nullptr;
    if (buffer && buffer->params.type == FZ_IMAGE_JPEG &&
        JPEGDamage::isIn({buffer->buffer->data, buffer->buffer->len}))
        fz_warn(ctx, "jpeg error: damaged data");
}

// MuPDF's own decoding, or nullptr on an error: MuPDF hits the same error when it draws the image,
// and reports it then.
fz_pixmap* muPDFPixmap(fz_context* ctx, fz_image* image, fz_matrix placement) {
    fz_pixmap* pixmap = nullptr;
    fz_var(pixmap);
    fz_try(ctx) {
        pixmap = fz_get_pixmap_from_image(ctx, image, nullptr, &placement, nullptr, nullptr);
    }
    fz_catch(ctx) {
        return nullptr;
    }
    return pixmap;
}

// An empty pixmap, or nullptr when memory ran out.
fz_pixmap* newPicture(fz_context* ctx, fz_colorspace* space, int width, int height) {
    fz_pixmap* picture = nullptr;
    fz_var(picture);
    fz_try(ctx) {
        picture = fz_new_pixmap(ctx, space, width, height, nullptr, 0);
    }
    fz_catch(ctx) {
        return nullptr;
    }
    return picture;
}

// Decodes any other image with MuPDF; empty when its samples are of an unusual kind.
Samples decodeWithMuPDF(fz_context* ctx, fz_image* image, fz_matrix placement) {
    fz_pixmap* pixmap = muPDFPixmap(ctx, image, placement);
    if (!pixmap)
        return {};
    Samples samples;
    if (!pixmap->alpha && pixmap->n == image->n) {
        samples = makeSamples(pixmap->w, pixmap->h, pixmap->n == 1 ? 1 : 4);
        const auto stride = int(pixmap->stride);
        if (!samples.data) {
            samples = {};
        } else if (pixmap->n == 3) {
            libyuv::RGB24ToARGB(pixmap->samples, stride, samples.data.get(), samples.stride(),
                                pixmap->w, pixmap->h);
        } else {
            libyuv::CopyPlane(pixmap->samples, stride, samples.data.get(), samples.stride(),
                              samples.stride(), pixmap->h);
        }
    }
    fz_drop_pixmap(ctx, pixmap);
    return samples;
}

// The image scaled to that size in its own colours, or nullptr. Never raises a MuPDF error.
fz_pixmap* scaledPicture(fz_context* ctx, fz_image* image, fz_matrix placement, int width,
                         int height) {
    Samples from = decodeJPEG(ctx, image, width, height);
    if (!from.data) {
        warnOfDamage(ctx, image);
        from = decodeWithMuPDF(ctx, image, placement);
    }
    if (!from.data)
        return nullptr;
    Samples to = makeSamples(width, height, from.bytesPerPixel);
    if (!to.data)
        return nullptr;
    if (to.bytesPerPixel == 1) {
        libyuv::ScalePlane(from.data.get(), from.stride(), from.width, from.height, to.data.get(),
                           to.stride(), width, height, libyuv::kFilterBox);
    } else {
        libyuv::ARGBScale(from.data.get(), from.stride(), from.width, from.height, to.data.get(),
                          to.stride(), width, height, libyuv::kFilterBox);
    }
    fz_pixmap* picture = newPicture(ctx, image->colorspace, width, height);
    if (!picture)
        return nullptr;
    const auto stride = int(picture->stride);
    if (image->n == 3) {
        libyuv::ARGBToRGB24(to.data.get(), to.stride(), picture->samples, stride, width, height);
    } else {
        libyuv::CopyPlane(to.data.get(), to.stride(), picture->samples, stride, to.stride(),
                          height);
    }
    return picture;
}

// Whether an image is scaled down, upright or rotated by a multiple of 90 degrees.
bool isPlainReduction(const fz_image* image, const fz_matrix& placement, float width,
                      float height) {
    const bool upright = placement.b == 0 && placement.c == 0;
    const bool turned = placement.a == 0 && placement.d == 0;
    const auto pixels = std::size_t(image->w) * std::size_t(image->h);
    return (upright || turned) && !image->imagemask && image->colorspace &&
           (image->n == 1 || image->n == 3 || image->n == 4) && width >= 1 && height >= 1 &&
           width <= float(image->w) && height <= float(image->h) &&
           (width < float(image->w) || height < float(image->h)) &&
           pixels <= 4 * PDFLimits::maxBitmapPixels;
}

void fillImage(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix placement,
               float alpha, fz_color_params params) {
    const FillImage draw = defaultFillImage;
    const fz_matrix fitted = fz_gridfit_matrix(0, placement); // whole pixels, as MuPDF does
    const float width = std::abs(fitted.a) + std::abs(fitted.b);
    const float height = std::abs(fitted.c) + std::abs(fitted.d);
    fz_pixmap* picture = nullptr;
    if (isPlainReduction(image, fitted, width, height)) {
        picture =
            scaledPicture(ctx, image, fitted, int(std::lround(width)), int(std::lround(height)));
    }
    warnOfDamage(ctx, image->mask);
    if (!picture) {
        warnOfDamage(ctx, image);
        draw(ctx, device, image, placement, alpha, params);
        return;
    }
    fz_image* scaled = nullptr;
    const auto drawScaled = [&] {
        scaled = fz_new_image_from_pixmap(ctx, picture, nullptr);
        draw(ctx, device, scaled, fitted, alpha, params);
    };
    runAndDrop(ctx, drawScaled, [&] {
        fz_drop_image(ctx, scaled);
        fz_drop_pixmap(ctx, picture);
    });
}

} // namespace

std::span<const unsigned char> plainJPEG(fz_context* ctx, fz_image* image) {
    const fz_compressed_buffer* buffer = fz_compressed_image_buffer(ctx, image);
    if (!isPlainJPEG(image, buffer))
        return {};
    const std::unique_ptr<void, int (*)(tjhandle)> decoder(tjInitDecompress(), tjDestroy);
    const std::span<const unsigned char> file(buffer->buffer->data, buffer->buffer->len);
    int width = 0;
    int height = 0;
    int sampling = 0;
    int space = 0;
    if (!decoder ||
        tjDecompressHeader3(decoder.get(), file.data(), static_cast<unsigned long>(file.size()),
                            &width, &height, &sampling, &space) != 0 ||
        width != image->w || height != image->h || (image->n == 1) != (space == TJCS_GRAY) ||
        space == TJCS_CMYK || space == TJCS_YCCK)
        return {};
    return file;
}

void scaleImagesFast(fz_device* drawDevice) {
    defaultFillImage = drawDevice->fill_image;
    drawDevice->fill_image = fillImage;
}
