#include "pdf/MarkedContent.h"

#include "pdf/PDFEngine.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// Of a page. A page full of small print has some thousand.
constexpr std::size_t maxMarks = 100'000;
constexpr std::size_t maxOpen = 256;
constexpr qsizetype maxReplacement = 1'000; // characters
constexpr qsizetype maxReplacements = 100'000;

constexpr int noID = -1;
constexpr int levels = 256; // of a colour's component

MarkedContent& contentOf(fz_context* ctx) {
    return *static_cast<MarkedContent*>(fz_user_context(ctx));
}

// Null for none.
const char* replacementIn(fz_context* ctx, pdf_obj* properties) {
    pdf_obj* text = pdf_dict_get(ctx, properties, PDF_NAME(ActualText));
    return pdf_is_string(ctx, text) ? pdf_to_text_string(ctx, text) : nullptr;
}

} // namespace

// What a device gets, in the colours of the marks.
struct MarkedContent::TextDevice {
    fz_device super;
    fz_device* text;

    static fz_device* textOf(fz_device* device) {
        return reinterpret_cast<TextDevice*>(device)->text;
    }
    static void show(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix) {
        const int number = contentOf(ctx).current();
        constexpr auto most = float(levels - 1);
        const int red = number / levels / levels;
        const int green = number / levels % levels;
        const int blue = number % levels;
        const std::array colour{float(red) / most, float(green) / most, float(blue) / most};
        fz_fill_text(ctx, textOf(device), text, matrix, fz_device_rgb(ctx), colour.data(), 1,
                     fz_default_color_params);
    }
    static void fill(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix,
                     fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
                     fz_color_params /*parameters*/) {
        show(ctx, device, text, matrix);
    }
    static void stroke(fz_context* ctx, fz_device* device, const fz_text* text,
                       const fz_stroke_state* /*stroke*/, fz_matrix matrix,
                       fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
                       fz_color_params /*parameters*/) {
        show(ctx, device, text, matrix);
    }
    static void clip(fz_context* ctx, fz_device* device, const fz_text* text, fz_matrix matrix,
                     fz_rect /*scissor*/) {
        show(ctx, device, text, matrix);
    }
    static void clipStroke(fz_context* ctx, fz_device* device, const fz_text* text,
                           const fz_stroke_state* /*stroke*/, fz_matrix matrix,
                           fz_rect /*scissor*/) {
        show(ctx, device, text, matrix);
    }
    static void addImage(fz_context* ctx, fz_matrix matrix) {
        MarkedContent& content = contentOf(ctx);
        fz_rect& images = content.iMarks[std::size_t(content.current())].images;
        images = fz_union_rect(images, fz_transform_rect(fz_unit_rect, matrix));
    }
    static void image(fz_context* ctx, fz_device* /*device*/, fz_image* /*image*/, fz_matrix matrix,
                      float /*alpha*/, fz_color_params /*parameters*/) {
        addImage(ctx, matrix);
    }
    static void mask(fz_context* ctx, fz_device* /*device*/, fz_image* /*image*/, fz_matrix matrix,
                     fz_colorspace* /*space*/, const float* /*colour*/, float /*alpha*/,
                     fz_color_params /*parameters*/) {
        addImage(ctx, matrix);
    }

    static fz_device* make(fz_context* ctx, fz_device* text) {
        auto* made = fz_new_derived_device(ctx, TextDevice);
        made->text = text;
        made->super.fill_text = fill;
        made->super.stroke_text = stroke;
        made->super.clip_text = clip;
        made->super.clip_stroke_text = clipStroke;
        made->super.ignore_text = show;
        made->super.fill_image = image;
        made->super.fill_image_mask = mask;
        return &made->super;
    }
};

struct MarkedContent::Operators {
    // Letters wait until something changes. A line's width does, and nothing is drawn here.
    static void flush(fz_context* ctx, pdf_processor* processor) {
        contentOf(ctx).iOriginal.op_w(ctx, processor, 1);
    }

    static void begin(fz_context* ctx, pdf_processor* processor, const char* tag) {
        flush(ctx, processor);
        contentOf(ctx).open(tag, noID, nullptr);
        contentOf(ctx).iOriginal.op_BMC(ctx, processor, tag);
    }

    static void beginWith(fz_context* ctx, pdf_processor* processor, const char* tag, pdf_obj* raw,
                          pdf_obj* properties) {
        flush(ctx, processor);
        pdf_obj* id = pdf_dict_get(ctx, properties, PDF_NAME(MCID));
        contentOf(ctx).open(tag, pdf_is_int(ctx, id) ? pdf_to_int(ctx, id) : noID,
                            replacementIn(ctx, properties));
        contentOf(ctx).iOriginal.op_BDC(ctx, processor, tag, raw, properties);
    }

    static void end(fz_context* ctx, pdf_processor* processor) {
        flush(ctx, processor);
        contentOf(ctx).close();
        contentOf(ctx).iOriginal.op_EMC(ctx, processor);
    }

    // A form may have marks of its own, which end with it.
    static void doForm(fz_context* ctx, pdf_processor* processor, const char* name, pdf_obj* form,
                       pdf_obj* resources) {
        flush(ctx, processor);
        MarkedContent& content = contentOf(ctx);
        const int stream = std::exchange(content.iStream, pdf_to_num(ctx, form));
        const std::size_t base = std::exchange(content.iBase, content.iOpen.size());
        const std::size_t tooDeep = content.iTooDeep;
        runAndDrop(
            ctx, [&] { content.iOriginal.op_Do_form(ctx, processor, name, form, resources); },
            [&] {
                content.iOpen.resize(std::min(content.iOpen.size(), content.iBase));
                content.iTooDeep = tooDeep;
                content.iBase = base;
                content.iStream = stream;
            });
    }

    static void replaceIn(pdf_processor& processor) {
        processor.op_BMC = begin;
        processor.op_BDC = beginWith;
        processor.op_EMC = end;
        processor.op_Do_form = doForm;
        // Nobody sees the rest.
        processor.op_gs_SMask = nullptr;
        for (auto* path : {&processor.op_m, &processor.op_l})
            *path = nullptr;
        processor.op_c = nullptr;
        processor.op_v = nullptr;
        processor.op_y = nullptr;
        processor.op_re = nullptr;
        for (auto* painting :
             {&processor.op_h, &processor.op_S, &processor.op_s, &processor.op_F, &processor.op_f,
              &processor.op_fstar, &processor.op_B, &processor.op_Bstar, &processor.op_b,
              &processor.op_bstar, &processor.op_n, &processor.op_W, &processor.op_Wstar})
            *painting = nullptr;
        processor.op_sh = nullptr;
    }
};

void MarkedContent::open(const char* tag, int id, const char* replacement) {
    if (iOpen.size() >= maxOpen) {
        ++iTooDeep;
        return;
    }
    Mark mark = iMarks[std::size_t(current())];
    const bool isArtifact = !mark.isArtifact && qstrcmp(tag, "Artifact") == 0;
    const bool isReplaced = replacement && iReplacements < maxReplacements;
    if ((id == noID && !isArtifact && !isReplaced) || iMarks.size() >= maxMarks) {
        iOpen.push_back(current());
        return;
    }
    mark.images = fz_empty_rect;
    mark.isArtifact = mark.isArtifact || isArtifact;
    if (id != noID) {
        mark.id = id;
        mark.stream = iStream;
    }
    if (isReplaced) {
        mark.replacement = QString::fromUtf8(replacement).left(maxReplacement);
        iReplacements += mark.replacement.size();
    }
    iOpen.push_back(int(iMarks.size()));
    iMarks.push_back(std::move(mark));
}

void MarkedContent::close() {
    if (iTooDeep > 0)
        --iTooDeep;
    else if (iOpen.size() > iBase)
        iOpen.pop_back();
}

std::size_t MarkedContent::markOf(const fz_stext_char& letter) const {
    const auto number = std::size_t(letter.color) & 0xFFFFFF;
    return number < iMarks.size() ? number : 0;
}

void MarkedContent::interpret(fz_context* ctx, pdf_page* page, fz_device* text, fz_cookie* cookie) {
    fz_default_colorspaces* spaces = nullptr;
    fz_device* device = nullptr;
    pdf_processor* processor = nullptr;
    void* user = fz_user_context(ctx);
    const auto interpret = [&] {
        fz_set_user_context(ctx, this);
        fz_rect box;
        fz_matrix matrix;
        pdf_page_transform(ctx, page, &box, &matrix);
        spaces = pdf_load_default_colorspaces(ctx, page->doc, page);
        device = TextDevice::make(ctx, text);
        processor = pdf_new_run_processor(ctx, device, matrix, "View", nullptr, spaces, cookie);
        iOriginal = *processor;
        Operators::replaceIn(*processor);
        pdf_process_contents(ctx, processor, page->doc, pdf_page_resources(ctx, page),
                             pdf_page_contents(ctx, page), cookie);
        pdf_close_processor(ctx, processor);
        fz_close_device(ctx, device);
    };
    runAndDrop(ctx, interpret, [&] {
        pdf_drop_processor(ctx, processor);
        fz_drop_device(ctx, device);
        fz_drop_default_colorspaces(ctx, spaces);
        fz_set_user_context(ctx, user);
    });
}
