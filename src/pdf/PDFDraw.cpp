#include "pdf/PDFEngine.h"
#include "pdf/PDFImages.h"
#include "pdf/PDFLimits.h"

#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

// Colour values closer together than this count as gray: one step of an 8-bit channel, which is
// invisible.
constexpr float grayTolerance = 1.0F / 256;

// Aborts a drawing through MuPDF's abort flag when it times out or is stopped.
class DrawTimeout {
public:
    explicit DrawTimeout(const DrawControl& control)
        : iControl(control),
          iDeadline(std::chrono::steady_clock::now() + control.timeLimit),
          iThread([this] { watch(); }) {}

    ~DrawTimeout() {
        {
            const std::lock_guard lock(iMutex);
            iDone = true;
        }
        iWake.notify_one();
        iThread.join();
    }
    DrawTimeout(const DrawTimeout&) = delete;
    DrawTimeout& operator=(const DrawTimeout&) = delete;

    fz_cookie* cookie() { return &iCookie; }

    void throwIfEnded() const {
        if (isStopped()) {
            throw PlatformException(ErrorKind::pageStopped,
                                    Message::translate("PageFailure", "drawing it was stopped"));
        }
        if (iTimedOut) {
            throw PlatformException(ErrorKind::pageTimeout,
                                    Message::translate("PageFailure", "drawing it took too long"));
        }
    }

private:
    bool isStopped() const { return iControl.stop && *iControl.stop; }

    void watch() {
        std::unique_lock lock(iMutex);
        while (!iDone) {
            const auto now = std::chrono::steady_clock::now();
            if (now >= iDeadline || isStopped()) {
                iTimedOut = now >= iDeadline;
                iCookie.abort = 1;
                return;
            }
            const auto next = iControl.stop
                                  ? std::min(iDeadline, now + std::chrono::milliseconds(20))
                                  : iDeadline;
            iWake.wait_until(lock, next);
        }
    }

    const DrawControl iControl;
    const std::chrono::steady_clock::time_point iDeadline;
    fz_cookie iCookie{};
    std::atomic<bool> iTimedOut{false};
    std::mutex iMutex;
    std::condition_variable iWake;
    bool iDone = false;
    std::thread iThread;
};

struct PixelSize {
    int width;
    int height;
    double scale; // pixels per point
};

// The size in whole pixels at a scale, or at the largest scale within the limits. A fraction of a
// pixel at the right and lower edges is dropped: it would show as a light seam.
PixelSize pixelSize(double width, double height, double scale) {
    using namespace PDFLimits;
    const double pixels = width * scale * height * scale;
    const double side = std::max(width, height) * scale;
    double factor = 1;
    if (pixels > double(maxBitmapPixels))
        factor = std::sqrt(double(maxBitmapPixels) / pixels);
    if (side * factor > maxBitmapSide)
        factor = maxBitmapSide / side;
    constexpr double rounding = 1e-3; // error of MuPDF's single-precision numbers
    const auto whole = [&](double length) {
        return std::max(1, int(length * scale * factor + rounding));
    };
    return {whole(width), whole(height), scale * factor};
}

// Whether any pixel of a colour picture is not gray.
bool hasColour(const PageBitmap& bitmap) {
    const unsigned char* pixel = bitmap.data();
    for (int y = 0; y < bitmap.height(); ++y) {
        unsigned difference = 0;
        for (int x = 0; x < bitmap.width(); ++x, pixel += 3)
            difference |= unsigned(pixel[0] ^ pixel[1]) | unsigned(pixel[1] ^ pixel[2]);
        if (difference > 1)
            return true;
    }
    return false;
}

// Converts to gray in place by keeping the first component of every pixel.
void dropColour(PageBitmap& bitmap) {
    const std::size_t count = std::size_t(bitmap.width()) * std::size_t(bitmap.height());
    unsigned char* samples = bitmap.data();
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = samples[3 * i];
    bitmap.resize(bitmap.width(), bitmap.height(), 1);
}

struct DrawnPage {
    fz_display_list* list = nullptr;
    int isColour = 0;
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
    fz_try(ctx) {
        fz_run_display_list(ctx, list, &watch->super, fz_identity, fz_infinite_rect, nullptr);
        fz_close_device(ctx, &watch->super);
        result = watch->blends;
    }
    fz_always(ctx) {
        fz_drop_device(ctx, &watch->super);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
    return result;
}

// Interprets the page once into a display list and detects whether it uses colour.
void recordPage(fz_context* ctx, fz_page* page, fz_cookie* cookie, DrawnPage& drawn) {
    fz_device* recorder = nullptr;
    fz_device* test = nullptr;
    fz_var(recorder);
    fz_var(test);
    fz_try(ctx) {
        drawn.list = fz_new_display_list(ctx, fz_bound_page(ctx, page));
        recorder = fz_new_list_device(ctx, drawn.list);
        test = fz_new_test_device(ctx, &drawn.isColour, grayTolerance, 0, recorder);
        fz_run_page(ctx, page, test, fz_identity, cookie);
        fz_close_device(ctx, test);
        fz_close_device(ctx, recorder);
    }
    fz_always(ctx) {
        fz_drop_device(ctx, test);
        fz_drop_device(ctx, recorder);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
}

// Removes the links of a page. They are not drawn, but loading the page would resolve each
// destination, which takes longer than drawing on pages full of references.
void dropLinks(fz_context* ctx, pdf_obj* page) {
    pdf_obj* annotations = pdf_dict_get(ctx, page, PDF_NAME(Annots));
    const int count = pdf_array_len(ctx, annotations);
    if (count == 0)
        return;
    pdf_obj* kept = pdf_new_array(ctx, pdf_get_bound_document(ctx, page), count);
    fz_try(ctx) {
        for (int i = 0; i < count; ++i) {
            pdf_obj* annotation = pdf_array_get(ctx, annotations, i);
            if (!pdf_name_eq(ctx, pdf_dict_get(ctx, annotation, PDF_NAME(Subtype)), PDF_NAME(Link)))
                pdf_array_push(ctx, kept, annotation);
        }
        pdf_dict_put(ctx, page, PDF_NAME(Annots), kept);
    }
    fz_always(ctx) {
        pdf_drop_obj(ctx, kept);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
}

// A page with a transparency group is drawn into a separate picture first, which is then composited
// onto white. Many documents declare a group on every page but use blending on a few only. Without
// blending the page can be drawn directly, faster and with the same result.
void recordPageSimply(fz_context* ctx, fz_page* page, fz_cookie* cookie, DrawnPage& drawn) {
    pdf_page* pdfPage = pdf_page_from_fz_page(ctx, page);
    const int transparency = pdfPage->transparency;
    pdfPage->transparency = 0;
    recordPage(ctx, page, cookie, drawn);
    if (!transparency || !blends(ctx, drawn.list))
        return;
    fz_drop_display_list(ctx, drawn.list);
    drawn = {};
    pdfPage->transparency = transparency;
    recordPage(ctx, page, cookie, drawn);
}

void drawList(fz_context* ctx, fz_display_list* list, const fz_matrix& matrix, PageBitmap& bitmap,
              fz_cookie* cookie) {
    fz_pixmap* pixmap = nullptr;
    fz_device* device = nullptr;
    fz_var(pixmap);
    fz_var(device);
    fz_try(ctx) {
        pixmap = fz_new_pixmap_with_data(
            ctx, bitmap.components() == 1 ? fz_device_gray(ctx) : fz_device_rgb(ctx),
            bitmap.width(), bitmap.height(), nullptr, 0, bitmap.stride(), bitmap.data());
        fz_clear_pixmap_with_value(ctx, pixmap, 0xFF);
        // The list contains the matrix, so the device sees final positions of images.
        device = fz_new_draw_device(ctx, fz_identity, pixmap);
        scaleImagesFast(device);
        fz_run_display_list(ctx, list, device, matrix, fz_infinite_rect, cookie);
        fz_close_device(ctx, device);
    }
    fz_always(ctx) {
        fz_drop_device(ctx, device);
        fz_drop_pixmap(ctx, pixmap);
    }
    fz_catch(ctx) {
        fz_rethrow(ctx);
    }
}

} // namespace

void PDFPage::draw(double scale, PageBitmap& bitmap, const DrawControl& control) const {
    const auto& engine = *iDocument->iEngine;
    DrawTimeout watch(control);
    DrawnPage drawn;
    fz_page* page = nullptr;
    fz_rect bounds = fz_empty_rect;
    const auto drop = [&](void*) {
        fz_drop_display_list(engine.context, drawn.list);
        fz_drop_page(engine.context, page);
    };
    const std::unique_ptr<void, decltype(drop)> cleanup(&drawn, drop);

    engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        if (engine.mapping)
            dropLinks(ctx, iObject);
        page = fz_load_page(ctx, &engine.document->super, iIndex);
        bounds = fz_bound_page(ctx, page);
        recordPageSimply(ctx, page, watch.cookie(), drawn);
    });
    watch.throwIfEnded();

    const double width = double(bounds.x1) - bounds.x0;
    const double height = double(bounds.y1) - bounds.y0;
    const PixelSize size = pixelSize(width, height, scale);
    bitmap.resize(size.width, size.height, drawn.isColour ? 3 : 1);
    const fz_matrix matrix =
        fz_pre_translate(fz_scale(float(size.scale), float(size.scale)), -bounds.x0, -bounds.y0);
    engine.run(ErrorKind::pageUnreadable,
               [&](fz_context* ctx) { drawList(ctx, drawn.list, matrix, bitmap, watch.cookie()); });
    watch.throwIfEnded();
    // Using a colour space counts as colour so far; scans are often gray all the same.
    if (bitmap.components() == 3 && !hasColour(bitmap))
        dropColour(bitmap);
}
