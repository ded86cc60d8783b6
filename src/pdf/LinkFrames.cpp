#include "pdf/LinkFrames.h"

#include "pdf/PDFEngine.h"

#include <algorithm>
#include <array>

namespace {

constexpr int maxDashes = 8;
constexpr int maxFrames = 10'000; // of a page

struct Frame {
    fz_rect box;
    float width = 0; // of its line; 0 for none
    bool isUnderline = false;
    int dashCount = 0;
    std::array<float, maxDashes> dashes{};
    int components = 1; // of its colour
    std::array<float, 4> colour{};
};

void readDashes(fz_context* ctx, pdf_obj* list, Frame& frame) {
    const int count = std::min(pdf_array_len(ctx, list), maxDashes);
    float length = 0;
    for (int i = 0; i < count; ++i) {
        frame.dashes[std::size_t(i)] = std::max(pdf_array_get_real(ctx, list, i), 0.F);
        length += frame.dashes[std::size_t(i)];
    }
    frame.dashCount = length > 0 ? count : 0;
}

// Without an entry "Border" or "BS" readers draw nothing, although the format has a default.
void readLine(fz_context* ctx, pdf_obj* link, Frame& frame) {
    pdf_obj* style = pdf_dict_get(ctx, link, PDF_NAME(BS));
    pdf_obj* border = pdf_dict_get(ctx, link, PDF_NAME(Border));
    if (!pdf_is_dict(ctx, style)) {
        frame.width = pdf_array_get_real(ctx, border, 2); // 0 when there is none
        readDashes(ctx, pdf_array_get(ctx, border, 3), frame);
        return;
    }
    pdf_obj* width = pdf_dict_get(ctx, style, PDF_NAME(W));
    frame.width = width ? pdf_to_real(ctx, width) : 1;
    pdf_obj* kind = pdf_dict_get(ctx, style, PDF_NAME(S));
    frame.isUnderline = pdf_name_eq(ctx, kind, PDF_NAME(U)) != 0;
    if (!pdf_name_eq(ctx, kind, PDF_NAME(D)))
        return;
    frame.dashCount = 1;
    frame.dashes[0] = 3;
    if (pdf_obj* dashes = pdf_dict_get(ctx, style, PDF_NAME(D)))
        readDashes(ctx, dashes, frame);
}

// Black when there is none. An empty one makes the frame invisible.
void readColour(fz_context* ctx, pdf_obj* link, Frame& frame) {
    pdf_obj* colour = pdf_dict_get(ctx, link, PDF_NAME(C));
    if (!pdf_is_array(ctx, colour))
        return;
    frame.components = pdf_array_len(ctx, colour);
    if (frame.components != 1 && frame.components != 3 && frame.components != 4)
        frame.width = 0;
    for (std::size_t i = 0; i < frame.colour.size(); ++i)
        frame.colour[i] = std::clamp(pdf_array_get_real(ctx, colour, int(i)), 0.F, 1.F);
}

Frame frameOf(fz_context* ctx, pdf_obj* link) {
    constexpr int hidden = PDF_ANNOT_IS_HIDDEN | PDF_ANNOT_IS_NO_VIEW;
    Frame frame{pdf_dict_get_rect(ctx, link, PDF_NAME(Rect))};
    if (!pdf_name_eq(ctx, pdf_dict_get(ctx, link, PDF_NAME(Subtype)), PDF_NAME(Link)) ||
        (pdf_dict_get_int(ctx, link, PDF_NAME(F)) & hidden) || fz_is_empty_rect(frame.box))
        return frame;
    readLine(ctx, link, frame);
    readColour(ctx, link, frame);
    frame.width = std::min({frame.width, frame.box.x1 - frame.box.x0, frame.box.y1 - frame.box.y0});
    return frame;
}

void stroke(fz_context* ctx, fz_device* device, const Frame& frame, fz_matrix matrix) {
    fz_path* path = nullptr;
    fz_stroke_state* line = nullptr;
    fz_colorspace* space = frame.components == 1   ? fz_device_gray(ctx)
                           : frame.components == 3 ? fz_device_rgb(ctx)
                                                   : fz_device_cmyk(ctx);
    const auto draw = [&] {
        path = fz_new_path(ctx);
        const fz_rect middle = fz_expand_rect(frame.box, -frame.width / 2);
        if (frame.isUnderline) {
            fz_moveto(ctx, path, frame.box.x0, middle.y0);
            fz_lineto(ctx, path, frame.box.x1, middle.y0);
        } else {
            fz_rectto(ctx, path, middle.x0, middle.y0, middle.x1, middle.y1);
        }
        line = fz_new_stroke_state_with_dash_len(ctx, frame.dashCount);
        line->linewidth = frame.width;
        line->dash_len = frame.dashCount;
        std::copy_n(frame.dashes.begin(), frame.dashCount, line->dash_list);
        fz_stroke_path(ctx, device, path, line, matrix, space, frame.colour.data(), 1,
                       fz_default_color_params);
    };
    runAndDrop(ctx, draw, [&] {
        fz_drop_stroke_state(ctx, line);
        fz_drop_path(ctx, path);
    });
}

} // namespace

fz_display_list* LinkFrames::record(fz_context* ctx, pdf_obj* page) {
    pdf_obj* annotations = pdf_dict_get(ctx, page, PDF_NAME(Annots));
    const int count = std::min(pdf_array_len(ctx, annotations), maxFrames);
    fz_display_list* list = nullptr;
    fz_device* device = nullptr;
    const auto recordAll = [&] {
        fz_rect box;
        fz_matrix matrix;
        pdf_page_obj_transform(ctx, page, &box, &matrix);
        for (int i = 0; i < count; ++i) {
            const Frame frame = frameOf(ctx, pdf_array_get(ctx, annotations, i));
            if (!(frame.width > 0))
                continue;
            if (!list) {
                list = fz_new_display_list(ctx, fz_infinite_rect);
                device = fz_new_list_device(ctx, list);
            }
            stroke(ctx, device, frame, matrix);
        }
        if (device)
            fz_close_device(ctx, device);
    };
    fz_try(ctx) {
        recordAll();
    }
    fz_always(ctx) {
        fz_drop_device(ctx, device);
    }
    fz_catch(ctx) {
        fz_drop_display_list(ctx, list);
        fz_rethrow(ctx);
    }
    return list;
}
