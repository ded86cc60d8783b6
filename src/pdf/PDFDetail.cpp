#include "pdf/PDFRecording.h"

#include <algorithm>
#include <cmath>

namespace {

// Looks at what the page is made of.
struct DetailFinder {
    fz_device super;
    PageDetail detail;
};

PageDetail& detailOf(fz_device* device) {
    return reinterpret_cast<DetailFinder*>(device)->detail;
}

void findText(fz_context* /*ctx*/, fz_device* device, const fz_text* /*text*/, fz_matrix /*matrix*/,
              fz_colorspace* /*space*/, const float* /*color*/, float /*alpha*/,
              fz_color_params /*params*/) {
    detailOf(device).hasOutlines = true;
}

void findStroke(fz_context* /*ctx*/, fz_device* device, const fz_path* /*path*/,
                const fz_stroke_state* /*stroke*/, fz_matrix /*matrix*/, fz_colorspace* /*space*/,
                const float* /*color*/, float /*alpha*/, fz_color_params /*params*/) {
    detailOf(device).hasOutlines = true;
}

void findShade(fz_context* /*ctx*/, fz_device* device, fz_shade* /*shade*/, fz_matrix /*matrix*/,
               float /*alpha*/, fz_color_params /*params*/) {
    detailOf(device).hasShades = true;
}

void findImage(fz_context* /*ctx*/, fz_device* device, fz_image* image, fz_matrix matrix,
               float /*alpha*/, fz_color_params /*params*/) {
    PageDetail& detail = detailOf(device);
    detail.hasShades = true;
    const double width = std::hypot(double(matrix.a), double(matrix.b));
    const double height = std::hypot(double(matrix.c), double(matrix.d));
    if (width > 0 && height > 0)
        detail.imageScale =
            std::max(detail.imageScale, std::min(image->w / width, image->h / height));
}

void findImageMask(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
                   fz_colorspace* /*space*/, const float* /*color*/, float alpha,
                   fz_color_params params) {
    findImage(ctx, device, image, matrix, alpha, params);
}

void findClipImage(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
                   fz_rect /*scissor*/) {
    findImage(ctx, device, image, matrix, 1, fz_default_color_params);
}

void findMask(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, int /*luminosity*/,
              fz_colorspace* /*space*/, const float* /*color*/, fz_color_params /*params*/) {
    detailOf(device).hasShades = true;
}

PageDetail findDetail(fz_context* ctx, fz_display_list* list, const fz_rect& area,
                      fz_cookie* cookie) {
    auto* finder = fz_new_derived_device(ctx, DetailFinder);
    finder->super.fill_text = findText;
    finder->super.stroke_path = findStroke;
    finder->super.fill_shade = findShade;
    finder->super.fill_image = findImage;
    finder->super.fill_image_mask = findImageMask;
    finder->super.clip_image_mask = findClipImage;
    finder->super.begin_mask = findMask;
    PageDetail found;
    const auto find = [&] {
        fz_run_display_list(ctx, list, &finder->super, fz_identity, area, cookie);
        fz_close_device(ctx, &finder->super);
        found = finder->detail;
    };
    runAndDrop(ctx, find, [&] { fz_drop_device(ctx, &finder->super); });
    return found;
}

} // namespace

PageDetail DrawablePage::detail() const {
    Recording& page = *iRecording;
    PageDetail found;
    page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        found = findDetail(ctx, page.list, page.area(), page.watch.cookie());
    });
    page.watch.throwIfEnded();
    return found;
}
