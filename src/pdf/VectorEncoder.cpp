#include "pdf/VectorEncoder.h"

#include "pdf/PDFRecording.h"
#include "pdf/SVGWriter.h"
#include "pdf/SectionRecorder.h"

#include <cmath>

namespace {

// Pixels per point of the pictures in a file: at least as many as the page's own picture has, and
// no more than a browser draws fast.
constexpr float leastScale = 2.0F;
constexpr float mostScale = 3.0F;

struct VectorDevice {
    fz_device super;
    SVGWriter* writer;
};

SVGWriter& writerOf(fz_device* device) {
    return *reinterpret_cast<VectorDevice*>(device)->writer;
}

template <class Body>
void write(SVGWriter& writer, const Body& body) {
    if (!writer.isCorrect())
        return;
    try {
        body(writer);
    } catch (...) {
        writer.giveUp();
    }
}

void fillText(fz_context* /*ctx*/, fz_device* device, const fz_text* text, fz_matrix matrix,
              fz_colorspace* space, const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, nullptr};
    write(writerOf(device), [&](SVGWriter& to) { to.text(*text, matrix, paint); });
}

void strokeText(fz_context* /*ctx*/, fz_device* device, const fz_text* text,
                const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* space,
                const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, stroke};
    write(writerOf(device), [&](SVGWriter& to) { to.text(*text, matrix, paint); });
}

void fillPath(fz_context* /*ctx*/, fz_device* device, const fz_path* path, int evenOdd,
              fz_matrix matrix, fz_colorspace* space, const float* color, float alpha,
              fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, nullptr};
    write(writerOf(device), [&](SVGWriter& to) { to.path(path, evenOdd != 0, matrix, paint); });
}

void strokePath(fz_context* /*ctx*/, fz_device* device, const fz_path* path,
                const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* space,
                const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, stroke};
    write(writerOf(device), [&](SVGWriter& to) { to.path(path, false, matrix, paint); });
}

void clipPath(fz_context* /*ctx*/, fz_device* device, const fz_path* path, int evenOdd,
              fz_matrix matrix, fz_rect /*scissor*/) {
    write(writerOf(device), [&](SVGWriter& to) { to.beginClip(path, evenOdd != 0, matrix); });
}

// Many programs wrap all of a page in a group, which has no effect as long as it is composited
// normally.
void beginGroup(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_colorspace* /*space*/,
                int /*isolated*/, int knockout, int blendMode, float alpha) {
    if (knockout != 0 || blendMode != FZ_BLEND_NORMAL)
        writerOf(device).giveUp();
    write(writerOf(device), [&](SVGWriter& to) { to.beginGroup(alpha); });
}

void end(fz_context* /*ctx*/, fz_device* device) {
    write(writerOf(device), [](SVGWriter& to) { to.end(); });
}

void fillShade(fz_context* ctx, fz_device* device, fz_shade* shade, fz_matrix matrix, float alpha,
               fz_color_params params) {
    const fz_rect bounds = fz_bound_shade(ctx, shade, matrix);
    write(writerOf(device), [&](SVGWriter& to) {
        to.picture({bounds, leastScale, [&](fz_device* target, const fz_matrix& toPixels) {
                        fz_fill_shade(ctx, target, shade, fz_concat(matrix, toPixels), alpha,
                                      params);
                    }});
    });
}

// The scale at which all of an image's pixels show, as far as that is sensible.
float scaleOf(const fz_image& image, const fz_matrix& matrix) {
    const float width = std::hypot(matrix.a, matrix.b);
    const float height = std::hypot(matrix.c, matrix.d);
    const float finest = std::fmin(float(image.w) / width, float(image.h) / height);
    return std::fmin(std::fmax(finest, leastScale), mostScale);
}

void fillImage(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix, float alpha,
               fz_color_params params) {
    write(writerOf(device), [&](SVGWriter& to) {
        to.picture({fz_transform_rect(fz_unit_rect, matrix), scaleOf(*image, matrix),
                    [&](fz_device* target, const fz_matrix& toPixels) {
                        fz_fill_image(ctx, target, image, fz_concat(matrix, toPixels), alpha,
                                      params);
                    }});
    });
}

void fillImageMask(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
                   fz_colorspace* space, const float* colour, float alpha, fz_color_params params) {
    write(writerOf(device), [&](SVGWriter& to) {
        to.picture({fz_transform_rect(fz_unit_rect, matrix), scaleOf(*image, matrix),
                    [&](fz_device* target, const fz_matrix& toPixels) {
                        fz_fill_image_mask(ctx, target, image, fz_concat(matrix, toPixels), space,
                                           colour, alpha, params);
                    }});
    });
}

fz_device* newVectorDevice(fz_context* ctx, SVGWriter& writer) {
    auto* made = fz_new_derived_device(ctx, VectorDevice);
    made->writer = &writer;
    fz_device& device = made->super;
    device.fill_text = fillText;
    device.stroke_text = strokeText;
    device.fill_path = fillPath;
    device.stroke_path = strokePath;
    device.clip_path = clipPath;
    device.pop_clip = end;
    device.fill_shade = fillShade;
    device.fill_image = fillImage;
    device.fill_image_mask = fillImageMask;
    device.begin_group = beginGroup;
    device.end_group = end;
    return &device;
}

void writePage(fz_context* ctx, fz_display_list* list, SVGWriter& writer, const TakeSection& take,
               fz_cookie* cookie) {
    fz_device* vectors = nullptr;
    fz_device* device = nullptr;
    const auto draw = [&] {
        vectors = newVectorDevice(ctx, writer);
        device = newSectionRecorder(ctx, vectors, take);
        fz_run_display_list(ctx, list, device, fz_identity, fz_infinite_rect, cookie);
        fz_close_device(ctx, device);
        fz_close_device(ctx, vectors);
    };
    runAndDrop(ctx, draw, [&] {
        fz_drop_device(ctx, device);
        fz_drop_device(ctx, vectors);
    });
}

} // namespace

VectorEncoder::VectorEncoder() = default;

VectorEncoder::~VectorEncoder() = default;

QByteArray VectorEncoder::encode(const DrawablePage& drawn, qint64 mostBytes) {
    DrawablePage::Recording& page = drawn.recording();
    if (!iWriter)
        iWriter = std::make_unique<SVGWriter>(page.engine.context);
    // In the text of the file, where they take a third more bytes than when it is packed.
    iWriter->begin(page.bounds, std::size_t(mostBytes) * 4 / 3);
    fz_context* ctx = page.engine.context;
    const TakeSection take = [&](const PageSection& section) {
        if (section.blends)
            iWriter->giveUp();
        const auto drawSection = [&](fz_device* target, const fz_matrix& toPixels) {
            fz_run_display_list(ctx, section.list, target, toPixels, fz_infinite_rect,
                                page.watch.cookie());
        };
        write(*iWriter, [&](SVGWriter& to) {
            to.picture({section.bounds, mostScale, drawSection});
        });
    };
    page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ofPage) {
        writePage(ofPage, page.list, *iWriter, take, page.watch.cookie());
    });
    page.watch.throwIfEnded();
    if (!iWriter->isCorrect())
        return {};
    QByteArray packed = iDeflater.zlib(iWriter->file());
    return packed.size() <= mostBytes ? packed : QByteArray();
}
