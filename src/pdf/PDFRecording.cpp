#include "pdf/PDFRecording.h"

#include "pdf/ForwardingDevice.h"
#include "pdf/InlineImages.h"
#include "pdf/LinkFrames.h"

#include <utility>

namespace {

// Colour values closer together than this count as gray: one step of an 8-bit channel, which is
// invisible.
constexpr float grayTolerance = 1.0F / 256;

// Of forms in forms. Each may be in many others.
constexpr int maxResourceDepth = 3;

using ErrorText = std::array<char, 256>;

// Keeps a text device's error instead of raising it: it must not cost the page its picture.
template <class Body>
void runText(fz_context* ctx, ErrorText& error, Body body) {
    if (error.front() != '\0')
        return;
    fz_try(ctx) {
        body();
    }
    fz_catch(ctx) {
        fz_strlcpy(error.data(), fz_caught_message(ctx), error.size());
    }
}

// Passes texts to a second device, too.
struct TextTap : ForwardingDevice {
    fz_device* text;
    ErrorText* error;

    template <auto Call, class... Arguments>
    static void forwardText(fz_context* ctx, fz_device* device, Arguments... arguments) {
        Call(ctx, targetOf(device), arguments...);
        auto* tap = static_cast<TextTap*>(reinterpret_cast<ForwardingDevice*>(device));
        runText(ctx, *tap->error, [&] { Call(ctx, tap->text, arguments...); });
    }

    static fz_device* make(fz_context* ctx, fz_device* target, fz_device* text, ErrorText& error) {
        auto* tap = ForwardingDevice::make<TextTap>(ctx, target);
        tap->text = text;
        tap->error = &error;
        tap->super.fill_text = forwardText<fz_fill_text>;
        tap->super.stroke_text = forwardText<fz_stroke_text>;
        tap->super.clip_text = forwardText<fz_clip_text>;
        tap->super.clip_stroke_text = forwardText<fz_clip_stroke_text>;
        tap->super.ignore_text = forwardText<fz_ignore_text>;
        return &tap->super;
    }
};

// Detects whether anything is blended with its backdrop other than by covering it.
struct BlendDetector {
    fz_device super;
    bool blends;
};

void watchGroup(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_colorspace* /*space*/,
                int /*isolated*/, int /*knockout*/, int blendMode, float /*alpha*/) {
    if (blendMode != FZ_BLEND_NORMAL)
        reinterpret_cast<BlendDetector*>(device)->blends = true;
}

bool blends(fz_context* ctx, fz_display_list* list) {
    auto* watch = fz_new_derived_device(ctx, BlendDetector);
    watch->super.begin_group = watchGroup;
    bool result = true;
    const auto look = [&] {
        fz_run_display_list(ctx, list, &watch->super, fz_identity, fz_infinite_rect, nullptr);
        fz_close_device(ctx, &watch->super);
        result = watch->blends;
    };
    runAndDrop(ctx, look, [&] { fz_drop_device(ctx, &watch->super); });
    return result;
}

// Removes the links of a page. They are not drawn, but loading the page would resolve each
// destination, which takes longer than drawing on pages full of references.
void dropLinks(fz_context* ctx, pdf_obj* page) {
    pdf_obj* annotations = pdf_dict_get(ctx, page, PDF_NAME(Annots));
    const int count = pdf_array_len(ctx, annotations);
    if (count == 0)
        return;
    pdf_obj* kept = pdf_new_array(ctx, pdf_get_bound_document(ctx, page), count);
    const auto keepOthers = [&] {
        for (int i = 0; i < count; ++i) {
            pdf_obj* annotation = pdf_array_get(ctx, annotations, i);
            if (!pdf_name_eq(ctx, pdf_dict_get(ctx, annotation, PDF_NAME(Subtype)), PDF_NAME(Link)))
                pdf_array_push(ctx, kept, annotation);
        }
        pdf_dict_put(ctx, page, PDF_NAME(Annots), kept);
    };
    runAndDrop(ctx, keepOthers, [&] { pdf_drop_obj(ctx, kept); });
}

bool isUnreadableImage(fz_context* ctx, pdf_obj* object) {
    bool isUnreadable = false;
    fz_var(isUnreadable);
    fz_try(ctx) {
        fz_drop_image(ctx, pdf_load_image(ctx, pdf_get_bound_document(ctx, object), object));
    }
    fz_catch(ctx) {
        isUnreadable = fz_caught(ctx) == FZ_ERROR_GENERIC;
    }
    return isUnreadable;
}

// What is left of a content stream; null when nothing has to go. Owned by the caller.
fz_buffer* withoutEmptyImages(fz_context* ctx, fz_buffer* content) {
    unsigned char* data = nullptr;
    const std::size_t size = fz_buffer_storage(ctx, content, &data);
    const QByteArray kept = InlineImages::withoutEmpty(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size)));
    fz_buffer* made = nullptr;
    fz_var(made);
    fz_try(ctx) {
        if (!kept.isNull())
            made = fz_new_buffer_from_copied_data(
                ctx, reinterpret_cast<const unsigned char*>(kept.constData()),
                std::size_t(kept.size()));
    }
    fz_catch(ctx) {
        return nullptr;
    }
    return made;
}

// Removes images without width or height from the content of a page, whose streams become one, or
// of a form. Whether there were any.
bool dropEmptyImages(fz_context* ctx, pdf_obj* object, bool isForm) {
    pdf_document* document = pdf_get_bound_document(ctx, object);
    fz_stream* stream = nullptr;
    fz_buffer* content = nullptr;
    fz_buffer* kept = nullptr;
    pdf_obj* made = nullptr;
    const auto replace = [&] {
        constexpr std::size_t initialSize = 1 << 16;
        stream = isForm ? pdf_open_stream(ctx, object)
                        : pdf_open_contents_stream(ctx, document,
                                                   pdf_dict_get(ctx, object, PDF_NAME(Contents)));
        content = fz_read_all(ctx, stream, initialSize);
        kept = withoutEmptyImages(ctx, content);
        if (kept && isForm)
            pdf_update_stream(ctx, document, object, kept, 0);
        else if (kept)
            pdf_dict_put(ctx, object, PDF_NAME(Contents),
                         made = pdf_add_stream(ctx, document, kept, nullptr, 0));
    };
    runAndDrop(ctx, replace, [&] {
        pdf_drop_obj(ctx, made);
        fz_drop_buffer(ctx, kept);
        fz_drop_buffer(ctx, content);
        fz_drop_stream(ctx, stream);
    });
    return kept != nullptr;
}

// Removes them from the resources of a page and of the forms in it. Whether there were any.
bool dropUnreadableImages(fz_context* ctx, pdf_obj* resources, int depth) {
    pdf_obj* objects = pdf_dict_get(ctx, resources, PDF_NAME(XObject));
    bool hasDropped = false;
    for (int i = pdf_dict_len(ctx, objects) - 1; i >= 0 && depth > 0; --i) {
        pdf_obj* object = pdf_dict_get_val(ctx, objects, i);
        if (!pdf_name_eq(ctx, pdf_dict_get(ctx, object, PDF_NAME(Subtype)), PDF_NAME(Image))) {
            pdf_obj* inner = pdf_dict_get(ctx, object, PDF_NAME(Resources));
            hasDropped = dropUnreadableImages(ctx, inner, depth - 1) || hasDropped;
            hasDropped = dropEmptyImages(ctx, object, true) || hasDropped;
        } else if (isUnreadableImage(ctx, object)) {
            pdf_dict_del(ctx, objects, pdf_dict_get_key(ctx, objects, i));
            hasDropped = true;
        }
    }
    return hasDropped;
}

} // namespace

DrawablePage::Recording::~Recording() {
    fz_drop_stext_page(engine.context, text);
    fz_drop_display_list(engine.context, list);
    fz_drop_display_list(engine.context, frames);
    fz_drop_page(engine.context, page);
}

void DrawablePage::Recording::load(fz_context* ctx, PageCut cut, pdf_obj* object, Content content) {
    frames = LinkFrames::record(ctx, object);
    if (engine.mapping)
        dropLinks(ctx, object);
    page = fz_load_page(ctx, &engine.document->super, cut.index);
    bounds = fz_bound_page(ctx, page);
    isHalf = cut.part != PageCut::Part::whole;
    const float middle = (bounds.x0 + bounds.x1) / 2;
    if (cut.part == PageCut::Part::left)
        bounds.x1 = middle;
    else if (cut.part == PageCut::Part::right)
        bounds.x0 = middle;
    makeLists(ctx, content);
}

// Empty ones, in place of those that there are.
void DrawablePage::Recording::makeLists(fz_context* ctx, Content content) {
    fz_drop_display_list(ctx, std::exchange(list, nullptr));
    fz_drop_stext_page(ctx, std::exchange(text, nullptr));
    list = fz_new_display_list(ctx, bounds);
    if (content == Content::picturesAndText)
        text = fz_new_stext_page(ctx, bounds);
    isColour = 0;
    textError = {};
    if (marks)
        marks.emplace();
}

// MuPDF gives up a page at an image whose dictionary or header makes no sense.
void DrawablePage::Recording::record(fz_context* ctx, pdf_obj* object) {
    ErrorText error{};
    int kind = FZ_ERROR_NONE;
    fz_var(kind);
    fz_try(ctx) {
        interpret(ctx);
    }
    fz_catch(ctx) {
        kind = fz_caught(ctx);
        fz_strlcpy(error.data(), fz_caught_message(ctx), error.size());
    }
    if (kind == FZ_ERROR_NONE)
        return;
    pdf_obj* resources = pdf_dict_get_inheritable(ctx, object, PDF_NAME(Resources));
    const bool mayBeImage = kind == FZ_ERROR_GENERIC;
    const bool hasUnreadable = mayBeImage && dropUnreadableImages(ctx, resources, maxResourceDepth);
    const bool hasEmpty = mayBeImage && dropEmptyImages(ctx, object, false);
    if (!hasUnreadable && !hasEmpty)
        fz_throw(ctx, kind, "%s", error.data());
    makeLists(ctx, text ? Content::picturesAndText : Content::pictures);
    interpret(ctx);
}

// The texts do not come from the list: it leaves out those in empty clips and invisible ones of
// fonts without outlines, which scanned pages have.
void DrawablePage::Recording::interpret(fz_context* ctx) {
    fz_device* recorder = nullptr;
    fz_device* test = nullptr;
    fz_device* texts = nullptr;
    fz_device* tap = nullptr;
    const auto interpret = [&] {
        recorder = fz_new_list_device(ctx, list);
        test = fz_new_test_device(ctx, &isColour, grayTolerance, 0, recorder);
        if (text) {
            const fz_stext_options options{FZ_STEXT_MEDIABOX_CLIP, 1};
            texts = fz_new_stext_device(ctx, text, &options);
            if (!marks)
                tap = TextTap::make(ctx, test, texts, textError);
        }
        fz_run_page_contents(ctx, page, tap ? tap : test, fz_identity, watch.cookie());
        if (texts && marks)
            runText(ctx, textError, [&] {
                marks->interpret(ctx, pdf_page_from_fz_page(ctx, page), texts, watch.cookie());
            });
        if (texts)
            runText(ctx, textError, [&] { fz_close_device(ctx, texts); });
        if (frames)
            fz_run_display_list(ctx, frames, test, fz_identity, fz_infinite_rect, watch.cookie());
        fz_run_page_annots(ctx, page, test, fz_identity, watch.cookie());
        fz_run_page_widgets(ctx, page, test, fz_identity, watch.cookie());
        fz_close_device(ctx, test);
        fz_close_device(ctx, recorder);
    };
    runAndDrop(ctx, interpret, [&] {
        fz_drop_device(ctx, tap);
        fz_drop_device(ctx, texts);
        fz_drop_device(ctx, test);
        fz_drop_device(ctx, recorder);
    });
    // A page with a transparency group is drawn into a separate picture first, which is then
    // composited onto white. Many documents declare a group on every page but use blending on a few
    // only. Without blending the page can be drawn directly, faster and with the same result.
    hasPlainGroup = pdf_page_from_fz_page(ctx, page)->transparency != 0 && !blends(ctx, list);
}

void DrawablePage::Recording::readTags(pdf_obj* object) {
    if (!marks)
        return;
    const fz_matrix toDisplay = engine.get(
        [&](fz_context* ctx) {
            fz_rect box;
            fz_matrix matrix;
            pdf_page_transform(ctx, pdf_page_from_fz_page(ctx, page), &box, &matrix);
            return matrix;
        },
        fz_identity);
    tags = structure.tagsOf(object, marks->marks(), toDisplay);
}
