#include "pdf/DrawablePDF.h"
#include "pdf/ForwardingDevice.h"
#include "pdf/PDFImages.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFRecording.h"

#include <algorithm>
#include <cmath>

namespace {

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

// Draws everything but the first group.
struct GroupSkipper : ForwardingDevice {
    int depth; // of groups, the skipped one included
    int isDone;

    static GroupSkipper* of(fz_device* device) {
        return static_cast<GroupSkipper*>(reinterpret_cast<ForwardingDevice*>(device));
    }

    static void beginGroup(fz_context* ctx, fz_device* device, fz_rect area, fz_colorspace* space,
                           int isolated, int knockout, int blendMode, float alpha) {
        if (!of(device)->isDone && of(device)->depth++ == 0)
            return;
        fz_begin_group(ctx, targetOf(device), area, space, isolated, knockout, blendMode, alpha);
    }

    static void endGroup(fz_context* ctx, fz_device* device) {
        if (!of(device)->isDone && --of(device)->depth == 0)
            of(device)->isDone = 1;
        else
            fz_end_group(ctx, targetOf(device));
    }

    static fz_device* make(fz_context* ctx, fz_device* target) {
        auto* skipper = ForwardingDevice::make<GroupSkipper>(ctx, target);
        skipper->super.begin_group = beginGroup;
        skipper->super.end_group = endGroup;
        return &skipper->super;
    }
};

void drawList(fz_context* ctx, fz_display_list* list, bool skipsGroup, const fz_matrix& matrix,
              PageBitmap& bitmap, fz_cookie* cookie) {
    fz_pixmap* pixmap = nullptr;
    fz_device* device = nullptr;
    fz_device* skipper = nullptr;
    const auto draw = [&] {
        pixmap = fz_new_pixmap_with_data(
            ctx, bitmap.components() == 1 ? fz_device_gray(ctx) : fz_device_rgb(ctx),
            bitmap.width(), bitmap.height(), nullptr, 0, bitmap.stride(), bitmap.data());
        fz_clear_pixmap_with_value(ctx, pixmap, 0xFF);
        // The list contains the matrix, so the device sees final positions of images.
        device = fz_new_draw_device(ctx, fz_identity, pixmap);
        scaleImagesFast(device);
        if (skipsGroup)
            skipper = GroupSkipper::make(ctx, device);
        fz_run_display_list(ctx, list, skipper ? skipper : device, matrix, fz_infinite_rect,
                            cookie);
        fz_close_device(ctx, device);
    };
    runAndDrop(ctx, draw, [&] {
        fz_drop_device(ctx, skipper);
        fz_drop_device(ctx, device);
        fz_drop_pixmap(ctx, pixmap);
    });
}

} // namespace

DrawablePage::DrawablePage(const DrawablePDF& document, PageCut cut, const DrawControl& control,
                           Content content)
    : iRecording(std::make_unique<Recording>(document, control)) {
    Recording& recording = *iRecording;
    document.requirePage(cut.index);
    recording.engine.beginPage();
    pdf_obj* object = recording.engine.pageObject(cut.index);
    if (content == Content::picturesAndText && recording.structure.has(object))
        recording.marks.emplace();
    recording.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        recording.load(ctx, cut, object, content);
        recording.record(ctx, object);
    });
    recording.watch.throwIfEnded();
    recording.readTags(object);
}

DrawablePage::~DrawablePage() = default;

PageDamage DrawablePage::damage() const {
    return iRecording->engine.damage();
}

double DrawablePage::width() const {
    return double(iRecording->bounds.x1) - iRecording->bounds.x0;
}

void DrawablePage::draw(double scale, PageBitmap& bitmap) const {
    Recording& page = *iRecording;
    const double height = double(page.bounds.y1) - page.bounds.y0;
    const PixelSize size = pixelSize(width(), height, scale);
    bitmap.resize(size.width, size.height, page.isColour ? 3 : 1);
    const fz_matrix matrix = fz_pre_translate(fz_scale(float(size.scale), float(size.scale)),
                                              -page.bounds.x0, -page.bounds.y0);
    page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        drawList(ctx, page.list, page.hasPlainGroup, matrix, bitmap, page.watch.cookie());
    });
    page.watch.throwIfEnded();
    // Using a colour space counts as colour so far; scans are often gray all the same.
    bitmap.dropColourOfGray();
}
