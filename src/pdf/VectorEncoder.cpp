#include "pdf/VectorEncoder.h"

#include "pdf/PDFRecording.h"
#include "pdf/SVGWriter.h"

namespace {

struct VectorDevice {
    fz_device super;
    SVGWriter* writer;
};

SVGWriter& writerOf(fz_device* device) {
    return *reinterpret_cast<VectorDevice*>(device)->writer;
}

template <class Body>
void write(fz_device* device, const Body& body) {
    SVGWriter& writer = writerOf(device);
    if (!writer.isCorrect())
        return;
    try {
        body(writer);
    } catch (...) {
        writer.giveUp();
    }
}

void reject(fz_device* device) {
    writerOf(device).giveUp();
}

void fillText(fz_context* /*ctx*/, fz_device* device, const fz_text* text, fz_matrix matrix,
              fz_colorspace* space, const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, nullptr};
    write(device, [&](SVGWriter& to) { to.text(*text, matrix, paint); });
}

void strokeText(fz_context* /*ctx*/, fz_device* device, const fz_text* text,
                const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* space,
                const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, stroke};
    write(device, [&](SVGWriter& to) { to.text(*text, matrix, paint); });
}

void fillPath(fz_context* /*ctx*/, fz_device* device, const fz_path* path, int evenOdd,
              fz_matrix matrix, fz_colorspace* space, const float* color, float alpha,
              fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, nullptr};
    write(device, [&](SVGWriter& to) { to.path(path, evenOdd != 0, matrix, paint); });
}

void strokePath(fz_context* /*ctx*/, fz_device* device, const fz_path* path,
                const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* space,
                const float* color, float alpha, fz_color_params params) {
    const SVGPaint paint{space, color, alpha, params, stroke};
    write(device, [&](SVGWriter& to) { to.path(path, false, matrix, paint); });
}

void clipPath(fz_context* /*ctx*/, fz_device* device, const fz_path* path, int evenOdd,
              fz_matrix matrix, fz_rect /*scissor*/) {
    write(device, [&](SVGWriter& to) { to.beginClip(path, evenOdd != 0, matrix); });
}

// Many programs wrap all of a page in a group, which has no effect as long as it is composited
// normally.
void beginGroup(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_colorspace* /*space*/,
                int /*isolated*/, int knockout, int blendMode, float alpha) {
    if (knockout != 0 || blendMode != FZ_BLEND_NORMAL)
        reject(device);
    write(device, [&](SVGWriter& to) { to.beginGroup(alpha); });
}

void end(fz_context* /*ctx*/, fz_device* device) {
    write(device, [](SVGWriter& to) { to.end(); });
}

// What follows would look different in an SVG file, or be a bitmap there.

void noClipStroke(fz_context* /*ctx*/, fz_device* device, const fz_path* /*path*/,
                  const fz_stroke_state* /*stroke*/, fz_matrix /*matrix*/, fz_rect /*scissor*/) {
    reject(device);
}

void noClipText(fz_context* /*ctx*/, fz_device* device, const fz_text* /*text*/,
                fz_matrix /*matrix*/, fz_rect /*scissor*/) {
    reject(device);
}

void noClipStrokeText(fz_context* /*ctx*/, fz_device* device, const fz_text* /*text*/,
                      const fz_stroke_state* /*stroke*/, fz_matrix /*matrix*/,
                      fz_rect /*scissor*/) {
    reject(device);
}

void noShade(fz_context* /*ctx*/, fz_device* device, fz_shade* /*shade*/, fz_matrix /*matrix*/,
             float /*alpha*/, fz_color_params /*params*/) {
    reject(device);
}

void noImage(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
             float /*alpha*/, fz_color_params /*params*/) {
    reject(device);
}

void noImageMask(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
                 fz_colorspace* /*space*/, const float* /*color*/, float /*alpha*/,
                 fz_color_params /*params*/) {
    reject(device);
}

void noClipImage(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
                 fz_rect /*scissor*/) {
    reject(device);
}

void noMask(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, int /*luminosity*/,
            fz_colorspace* /*space*/, const float* /*color*/, fz_color_params /*params*/) {
    reject(device);
}

int noTile(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_rect /*view*/,
           float /*xStep*/, float /*yStep*/, fz_matrix /*matrix*/, int /*id*/) {
    reject(device);
    return 0;
}

void writePage(fz_context* ctx, SVGWriter& writer, fz_display_list* list, fz_cookie* cookie) {
    auto* made = fz_new_derived_device(ctx, VectorDevice);
    made->writer = &writer;
    fz_device& device = made->super;
    device.fill_text = fillText;
    device.stroke_text = strokeText;
    device.fill_path = fillPath;
    device.stroke_path = strokePath;
    device.clip_path = clipPath;
    device.clip_stroke_path = noClipStroke;
    device.clip_text = noClipText;
    device.clip_stroke_text = noClipStrokeText;
    device.pop_clip = end;
    device.fill_shade = noShade;
    device.fill_image = noImage;
    device.fill_image_mask = noImageMask;
    device.clip_image_mask = noClipImage;
    device.begin_mask = noMask;
    device.begin_group = beginGroup;
    device.end_group = end;
    device.begin_tile = noTile;
    const auto draw = [&] {
        fz_run_display_list(ctx, list, &device, fz_identity, fz_infinite_rect, cookie);
        fz_close_device(ctx, &device);
    };
    runAndDrop(ctx, draw, [&] { fz_drop_device(ctx, &device); });
}

} // namespace

VectorEncoder::VectorEncoder() = default;

VectorEncoder::~VectorEncoder() = default;

QByteArray VectorEncoder::encode(const DrawablePage& drawn) {
    DrawablePage::Recording& page = drawn.recording();
    if (!iWriter)
        iWriter = std::make_unique<SVGWriter>(page.engine.context);
    iWriter->begin(page.bounds);
    page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        writePage(ctx, *iWriter, page.list, page.watch.cookie());
    });
    page.watch.throwIfEnded();
    return iWriter->isCorrect() ? iDeflater.zlib(iWriter->file()) : QByteArray();
}
