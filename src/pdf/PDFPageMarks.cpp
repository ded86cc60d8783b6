#include "pdf/PDFMarks.h"
#include "pdf/PDFRecording.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float thinnest = 3; // of what is no rule, in points
constexpr float white = 0.98F;

// Whether a path consists of straight lines along the axes.
struct PathShape {
    fz_matrix matrix;
    fz_point first;
    fz_point last;
    bool isStraight;
};

void moveTo(fz_context* /*ctx*/, void* shape, float x, float y) {
    auto& path = *static_cast<PathShape*>(shape);
    path.first = path.last = fz_transform_point_xy(x, y, path.matrix);
}

void lineBetween(PathShape& path, fz_point to) {
    constexpr float slack = 0.3F;
    if (std::abs(to.x - path.last.x) > slack && std::abs(to.y - path.last.y) > slack)
        path.isStraight = false;
    path.last = to;
}

void lineTo(fz_context* /*ctx*/, void* shape, float x, float y) {
    auto& path = *static_cast<PathShape*>(shape);
    lineBetween(path, fz_transform_point_xy(x, y, path.matrix));
}

void curveTo(fz_context* /*ctx*/, void* shape, float /*x1*/, float /*y1*/, float /*x2*/,
             float /*y2*/, float /*x3*/, float /*y3*/) {
    static_cast<PathShape*>(shape)->isStraight = false;
}

void closePath(fz_context* /*ctx*/, void* shape) {
    auto& path = *static_cast<PathShape*>(shape);
    lineBetween(path, path.first);
}

bool isStraight(fz_context* ctx, const fz_path* path, fz_matrix matrix) {
    static const fz_path_walker walker{moveTo,  lineTo,  curveTo, closePath,
                                       nullptr, nullptr, nullptr, nullptr};
    PathShape shape{matrix, {}, {}, true};
    fz_walk_path(ctx, path, &walker, &shape);
    return shape.isStraight;
}

struct MarkFinder {
    fz_device super;
    PDFMarks* marks;
    fz_rect bounds;
    int tiles; // that are open

    static MarkFinder& of(fz_device* device) { return *reinterpret_cast<MarkFinder*>(device); }
};

void add(fz_context* ctx, fz_device* device, fz_rect rect, PDFMark::Kind kind) {
    MarkFinder& finder = MarkFinder::of(device);
    rect = fz_intersect_rect(rect, fz_device_current_scissor(ctx, device));
    rect = fz_intersect_rect(rect, finder.bounds);
    if (finder.tiles > 0 || fz_is_empty_rect(rect) != 0)
        return;
    const float width = rect.x1 - rect.x0;
    const float height = rect.y1 - rect.y0;
    const bool isThin = std::min(width, height) < thinnest;
    finder.marks->add(
        {QRectF(rect.x0 - finder.bounds.x0, rect.y0 - finder.bounds.y0, width, height),
         isThin && kind != PDFMark::Kind::drawing ? PDFMark::Kind::rule : kind});
}

// On white paper nobody sees it.
bool isVisible(fz_context* ctx, fz_colorspace* space, const float* colour, float alpha,
               fz_color_params params) {
    float rgb[3] = {};
    fz_convert_color(ctx, space, colour, fz_device_rgb(ctx), rgb, nullptr, params);
    return alpha > 0 && std::min({rgb[0], rgb[1], rgb[2]}) < white;
}

void fillPath(fz_context* ctx, fz_device* device, const fz_path* path, int /*evenOdd*/,
              fz_matrix matrix, fz_colorspace* space, const float* colour, float alpha,
              fz_color_params params) {
    if (isVisible(ctx, space, colour, alpha, params))
        add(ctx, device, fz_bound_path(ctx, path, nullptr, matrix),
            isStraight(ctx, path, matrix) ? PDFMark::Kind::fill : PDFMark::Kind::drawing);
}

// MuPDF's own takes every corner for a sharp one, and so is too large.
fz_rect strokedBox(fz_context* ctx, const fz_path* path, const fz_stroke_state* stroke,
                   fz_matrix matrix) {
    const float width = stroke->linewidth * fz_matrix_expansion(matrix);
    return fz_expand_rect(fz_bound_path(ctx, path, nullptr, matrix), width / 2);
}

void strokePath(fz_context* ctx, fz_device* device, const fz_path* path,
                const fz_stroke_state* stroke, fz_matrix matrix, fz_colorspace* space,
                const float* colour, float alpha, fz_color_params params) {
    if (isVisible(ctx, space, colour, alpha, params))
        add(ctx, device, strokedBox(ctx, path, stroke, matrix),
            isStraight(ctx, path, matrix) ? PDFMark::Kind::frame : PDFMark::Kind::drawing);
}

bool isLetter(int code) {
    constexpr int firstPrintable = 0x20;
    constexpr int unknown = 0xFFFD;
    constexpr int firstPrivate = 0xE000;
    constexpr int lastPrivate = 0xF8FF;
    return code >= firstPrintable && code != unknown && (code < firstPrivate || code > lastPrivate);
}

void fillText(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix,
              fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
              fz_color_params /*params*/) {
    for (const fz_text_span* span = text->head; span; span = span->next) {
        for (int i = 0; i < span->len; ++i) {
            if (isLetter(span->items[i].ucs))
                return;
        }
    }
    add(ctx, device, fz_bound_text(ctx, text, nullptr, matrix), PDFMark::Kind::sign);
}

void fillShade(fz_context* ctx, fz_device* device, fz_shade* shade, fz_matrix matrix,
               float /*alpha*/, fz_color_params /*params*/) {
    add(ctx, device, fz_bound_shade(ctx, shade, matrix), PDFMark::Kind::fill);
}

void fillImage(fz_context* ctx, fz_device* device, fz_image* /*image*/, fz_matrix matrix,
               float /*alpha*/, fz_color_params /*params*/) {
    add(ctx, device, fz_transform_rect(fz_unit_rect, matrix), PDFMark::Kind::image);
}

void fillImageMask(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
                   fz_colorspace* /*space*/, const float* /*colour*/, float alpha,
                   fz_color_params params) {
    fillImage(ctx, device, image, matrix, alpha, params);
}

void clipImageMask(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
                   fz_rect /*scissor*/) {
    fillImage(ctx, device, image, matrix, 1, fz_default_color_params);
}

int beginTile(fz_context* ctx, fz_device* device, fz_rect area, fz_rect /*view*/, float /*xStep*/,
              float /*yStep*/, fz_matrix matrix, int /*id*/) {
    add(ctx, device, fz_transform_rect(area, matrix), PDFMark::Kind::fill);
    ++MarkFinder::of(device).tiles;
    return 0;
}

void endTile(fz_context* /*ctx*/, fz_device* device) {
    --MarkFinder::of(device).tiles;
}

void findMarks(fz_context* ctx, DrawablePage::Recording& page, PDFMarks& marks) {
    auto* finder = fz_new_derived_device(ctx, MarkFinder);
    finder->marks = &marks;
    finder->bounds = page.bounds;
    fz_device& device = finder->super;
    device.fill_path = fillPath;
    device.stroke_path = strokePath;
    device.fill_text = fillText;
    device.fill_shade = fillShade;
    device.fill_image = fillImage;
    device.fill_image_mask = fillImageMask;
    device.clip_image_mask = clipImageMask;
    device.begin_tile = beginTile;
    device.end_tile = endTile;
    const auto find = [&] {
        fz_run_display_list(ctx, page.list, &device, fz_identity, page.area(), page.watch.cookie());
        fz_close_device(ctx, &device);
    };
    runAndDrop(ctx, find, [&] { fz_drop_device(ctx, &device); });
}

} // namespace

std::vector<PDFMark> DrawablePage::marks() const {
    Recording& page = *iRecording;
    PDFMarks marks;
    page.engine.run(ErrorKind::pageUnreadable,
                    [&](fz_context* ctx) { findMarks(ctx, page, marks); });
    page.watch.throwIfEnded();
    return marks.take();
}
