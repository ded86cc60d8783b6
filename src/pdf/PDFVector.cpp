#include "pdf/PDFRecording.h"
#include "pdf/VectorPage.h"

namespace {

// Detects content that an SVG file would render differently or embed as a bitmap: images, shadings,
// masks, patterns, blending, and Type 3 fonts. Also detects content outside the page: the SVG file
// would contain it although the publisher does not see it. Pages cut from one spread often contain
// the whole spread, each with its own crop box.
struct SimplicityChecker {
    fz_device super;
    fz_rect page;
    bool simple;
};

SimplicityChecker* watchOf(fz_device* device) {
    return reinterpret_cast<SimplicityChecker*>(device);
}

void checkPlace(fz_device* device, fz_rect bounds) {
    if (!fz_is_empty_rect(bounds) &&
        fz_is_empty_rect(fz_intersect_rect(bounds, watchOf(device)->page)))
        watchOf(device)->simple = false;
}

void checkText(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix) {
    for (const fz_text_span* span = text->head; span; span = span->next) {
        if (fz_font_t3_procs(ctx, span->font))
            watchOf(device)->simple = false;
        fz_matrix place = span->trm;
        for (int i = 0; i < span->len && watchOf(device)->simple; ++i) {
            if (span->items[i].gid < 0)
                continue;
            place.e = span->items[i].x;
            place.f = span->items[i].y;
            checkPlace(device, fz_bound_glyph(ctx, span->font, span->items[i].gid,
                                              fz_concat(place, matrix)));
        }
    }
}

void watchText(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix,
               fz_colorspace* /*space*/, const float* /*color*/, float /*alpha*/,
               fz_color_params /*params*/) {
    checkText(ctx, device, text, matrix);
}

void watchTextStroke(fz_context* ctx, fz_device* device, const fz_text* text,
                     const fz_stroke_state* /*stroke*/, fz_matrix matrix, fz_colorspace* /*space*/,
                     const float* /*color*/, float /*alpha*/, fz_color_params /*params*/) {
    checkText(ctx, device, text, matrix);
}

void watchPath(fz_context* ctx, fz_device* device, const fz_path* path, int /*evenOdd*/,
               fz_matrix matrix, fz_colorspace* /*space*/, const float* /*color*/, float /*alpha*/,
               fz_color_params /*params*/) {
    checkPlace(device, fz_bound_path(ctx, path, nullptr, matrix));
}

void watchPathStroke(fz_context* ctx, fz_device* device, const fz_path* path,
                     const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* /*space*/,
                     const float* /*color*/, float /*alpha*/, fz_color_params /*params*/) {
    checkPlace(device, fz_bound_path(ctx, path, stroke, matrix));
}

void noClipText(fz_context* /*ctx*/, fz_device* device, const fz_text* /*text*/,
                fz_matrix /*matrix*/, fz_rect /*scissor*/) {
    watchOf(device)->simple = false;
}

void noShade(fz_context* /*ctx*/, fz_device* device, fz_shade* /*shade*/, fz_matrix /*matrix*/,
             float /*alpha*/, fz_color_params /*params*/) {
    watchOf(device)->simple = false;
}

void noImage(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
             float /*alpha*/, fz_color_params /*params*/) {
    watchOf(device)->simple = false;
}

void noImageMask(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
                 fz_colorspace* /*space*/, const float* /*color*/, float /*alpha*/,
                 fz_color_params /*params*/) {
    watchOf(device)->simple = false;
}

void noClipImage(fz_context* /*ctx*/, fz_device* device, fz_image* /*image*/, fz_matrix /*matrix*/,
                 fz_rect /*scissor*/) {
    watchOf(device)->simple = false;
}

void noMask(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, int /*luminosity*/,
            fz_colorspace* /*space*/, const float* /*color*/, fz_color_params /*params*/) {
    watchOf(device)->simple = false;
}

// Many programs wrap all of a page in a group, which has no effect as long as it is composited
// normally.
void watchGroup(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_colorspace* /*space*/,
                int /*isolated*/, int knockout, int blendMode, float alpha) {
    if (knockout != 0 || blendMode != FZ_BLEND_NORMAL || alpha < 1)
        watchOf(device)->simple = false;
}

int noTile(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_rect /*view*/,
           float /*xStep*/, float /*yStep*/, fz_matrix /*matrix*/, int /*id*/) {
    watchOf(device)->simple = false;
    return 0;
}

bool isSimple(fz_context* ctx, fz_display_list* list, fz_rect page, fz_cookie* cookie) {
    auto* watch = fz_new_derived_device(ctx, SimplicityChecker);
    watch->page = page;
    watch->simple = true;
    fz_device& device = watch->super;
    device.fill_text = watchText;
    device.stroke_text = watchTextStroke;
    device.fill_path = watchPath;
    device.stroke_path = watchPathStroke;
    device.clip_text = noClipText;
    device.fill_shade = noShade;
    device.fill_image = noImage;
    device.fill_image_mask = noImageMask;
    device.clip_image_mask = noClipImage;
    device.begin_mask = noMask;
    device.begin_group = watchGroup;
    device.begin_tile = noTile;
    bool result = false;
    fz_try(ctx) {
        fz_run_display_list(ctx, list, &device, fz_identity, fz_infinite_rect, cookie);
        fz_close_device(ctx, &device);
        result = watch->simple;
    }
    fz_always(ctx) {
        fz_drop_device(ctx, &device);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
    return result;
}

void writeSVG(fz_context* ctx, fz_display_list* list, fz_rect bounds, fz_buffer* buffer,
              fz_cookie* cookie) {
    fz_output* output = nullptr;
    fz_device* device = nullptr;
    fz_var(output);
    fz_var(device);
    fz_try(ctx) {
        output = fz_new_output_with_buffer(ctx, buffer);
        device = fz_new_svg_device(ctx, output, bounds.x1 - bounds.x0, bounds.y1 - bounds.y0,
                                   FZ_SVG_TEXT_AS_PATH, 1);
        fz_run_display_list(ctx, list, device, fz_translate(-bounds.x0, -bounds.y0),
                            fz_infinite_rect, cookie);
        fz_close_device(ctx, device);
        fz_close_output(ctx, output);
    }
    fz_always(ctx) {
        fz_drop_device(ctx, device);
        fz_drop_output(ctx, output);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
}

} // namespace

QByteArray DrawablePage::vectorPicture() const {
    Recording& page = *iRecording;
    fz_context* const context = page.engine.context;
    fz_buffer* buffer = nullptr;
    const auto drop = [&](fz_buffer** held) { fz_drop_buffer(context, *held); };
    const std::unique_ptr<fz_buffer*, decltype(drop)> cleanup(&buffer, drop);
    page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        if (!isSimple(ctx, page.list, page.bounds, page.watch.cookie()))
            return;
        buffer = fz_new_buffer(ctx, std::size_t{1} << 18);
        writeSVG(ctx, page.list, page.bounds, buffer, page.watch.cookie());
    });
    page.watch.throwIfEnded();
    if (!buffer)
        return {};
    unsigned char* bytes = nullptr;
    const std::size_t size = fz_buffer_storage(context, buffer, &bytes);
    QByteArray picture = VectorPage::compact(
        QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), qsizetype(size)));
    // On a white background, like the page's other pictures: it may be shown on top of one of them.
    const qsizetype start = picture.indexOf('>', picture.indexOf("<svg")) + 1;
    picture.insert(start, "\n<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>");
    return picture;
}
