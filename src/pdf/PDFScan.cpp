#include "pdf/PDFImages.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFRecording.h"
#include "pdf/SVGPath.h"
#include "picture/JPEGFile.h"

#include <QRect>
#include <cmath>
#include <optional>

namespace {

// Scanning programs cut images a little smaller than the page, in points.
constexpr float missingEdge = 1.5F;

// Finds the only image of a page, and whether there is anything else.
struct ScanFinder {
    fz_device super;
    fz_image* image;
    fz_matrix matrix;
    fz_rect clip;
    int isMask;
    int hasOthers;

    static ScanFinder& of(fz_device* device) { return *reinterpret_cast<ScanFinder*>(device); }
};

template <class... Arguments>
void findOther(fz_context* /*ctx*/, fz_device* device, Arguments... /*arguments*/) {
    ScanFinder::of(device).hasOthers = 1;
}

void findImage(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix, float alpha,
               fz_color_params /*params*/) {
    ScanFinder& finder = ScanFinder::of(device);
    if (finder.image || alpha < 1 || image->mask)
        finder.hasOthers = 1;
    else
        finder.image = fz_keep_image(ctx, image);
    finder.matrix = matrix;
}

void findMask(fz_context* ctx, fz_device* device, fz_image* image, fz_matrix matrix,
              fz_colorspace* space, const float* colour, float alpha, fz_color_params params) {
    float gray = 0;
    fz_convert_color(ctx, space, colour, fz_device_gray(ctx), &gray, nullptr, params);
    if (gray > 0)
        ScanFinder::of(device).hasOthers = 1;
    ScanFinder::of(device).isMask = 1;
    findImage(ctx, device, image, matrix, alpha, params);
}

void findClip(fz_context* ctx, fz_device* device, const fz_path* path, int /*evenOdd*/,
              fz_matrix matrix, fz_rect /*scissor*/) {
    ScanFinder& finder = ScanFinder::of(device);
    finder.clip = fz_intersect_rect(finder.clip, fz_bound_path(ctx, path, nullptr, matrix));
    SVGText commands(256);
    writePath(ctx, path, matrix, commands);
    if (commands.isFull() || !isBox(commands.view()))
        finder.hasOthers = 1;
}

void findGroup(fz_context* /*ctx*/, fz_device* device, fz_rect /*area*/, fz_colorspace* /*space*/,
               int /*isolated*/, int knockout, int blendMode, float alpha) {
    if (knockout != 0 || blendMode != FZ_BLEND_NORMAL || alpha < 1)
        ScanFinder::of(device).hasOthers = 1;
}

int findTile(fz_context* ctx, fz_device* device, fz_rect /*area*/, fz_rect /*view*/,
             float /*xStep*/, float /*yStep*/, fz_matrix /*matrix*/, int /*id*/) {
    findOther(ctx, device);
    return 0;
}

ScanFinder* newScanFinder(fz_context* ctx) {
    auto* finder = fz_new_derived_device(ctx, ScanFinder);
    finder->clip = fz_infinite_rect;
    fz_device& device = finder->super;
    device.fill_text = findOther;
    device.stroke_text = findOther;
    device.clip_text = findOther;
    device.clip_stroke_text = findOther;
    device.fill_path = findOther;
    device.stroke_path = findOther;
    device.clip_path = findClip;
    device.clip_stroke_path = findOther;
    device.fill_shade = findOther;
    device.fill_image = findImage;
    device.fill_image_mask = findMask;
    device.clip_image_mask = findOther;
    device.begin_mask = findOther;
    device.begin_group = findGroup;
    device.begin_tile = findTile;
    return finder;
}

// The turn that the page shows an image with; none when it is skewed.
std::optional<JPEGFile::Turn> turnOf(const fz_matrix& matrix) {
    using enum JPEGFile::Turn;
    const float small = 1e-3F * (std::abs(matrix.a) + std::abs(matrix.b));
    if (std::abs(matrix.b) <= small && std::abs(matrix.c) <= small) {
        if (matrix.a > 0)
            return matrix.d > 0 ? none : flipY;
        return matrix.d > 0 ? flipX : half;
    }
    if (std::abs(matrix.a) > small || std::abs(matrix.d) > small)
        return std::nullopt;
    if (matrix.b > 0)
        return matrix.c > 0 ? transpose : clockwise;
    return matrix.c > 0 ? anticlockwise : transverse;
}

// Whether the rectangle covers another one but for a small edge.
bool covers(fz_rect rect, fz_rect page) {
    return fz_contains_rect(fz_expand_rect(rect, missingEdge), page) != 0;
}

// Where a turned picture has its pixel from, in an image of this size.
QPoint sourceOf(JPEGFile::Turn turn, int x, int y, QSize size) {
    const int fromRight = size.width() - 1;
    const int fromBottom = size.height() - 1;
    switch (turn) {
    case JPEGFile::Turn::none:
        break;
    case JPEGFile::Turn::flipX:
        return {fromRight - x, y};
    case JPEGFile::Turn::flipY:
        return {x, fromBottom - y};
    case JPEGFile::Turn::transpose:
        return {y, x};
    case JPEGFile::Turn::transverse:
        return {fromRight - y, fromBottom - x};
    case JPEGFile::Turn::clockwise:
        return {y, fromBottom - x};
    case JPEGFile::Turn::half:
        return {fromRight - x, fromBottom - y};
    case JPEGFile::Turn::anticlockwise:
        return {fromRight - y, x};
    }
    return {x, y};
}

// The part of the turned image. A stencil is inked where it is opaque.
void copyTurned(const fz_pixmap& from, JPEGFile::Turn turn, const QRect& part, bool isStencil,
                PageBitmap& to) {
    const QSize size(from.w, from.h);
    const auto sample = [&](int x, int y) {
        const QPoint place = sourceOf(turn, x, y, size);
        return from.samples + place.y() * from.stride + place.x();
    };
    const std::ptrdiff_t step = sample(1, 0) - sample(0, 0);
    const unsigned char inverted = isStencil ? 0xFF : 0;
    to.resize(part.width(), part.height(), 1);
    unsigned char* out = to.data();
    for (int y = 0; y < part.height(); ++y) {
        const unsigned char* in = sample(part.x(), part.y() + y);
        for (int x = 0; x < part.width(); ++x, in += step)
            *out++ = *in ^ inverted;
    }
}

} // namespace

// The image of a page that shows nothing else, and how the page shows it.
struct DrawablePage::Scan {
    explicit Scan(Recording& page) : recording(page) {
        page.engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) { find(ctx); });
        page.watch.throwIfEnded();
    }
    ~Scan() { fz_drop_image(recording.engine.context, image); }
    Scan(const Scan&) = delete;
    Scan& operator=(const Scan&) = delete;

    void find(fz_context* ctx);
    void place(const ScanFinder& found);

    Recording& recording;
    fz_image* image = nullptr;
    bool isMask = false;
    std::optional<JPEGFile::Turn> turn; // none for other pages
    QRect part;                         // of the turned image that is seen, in its pixels
};

void DrawablePage::Scan::find(fz_context* ctx) {
    ScanFinder* finder = newScanFinder(ctx);
    const auto look = [&] {
        fz_run_display_list(ctx, recording.list, &finder->super, fz_identity, fz_infinite_rect,
                            recording.watch.cookie());
        fz_close_device(ctx, &finder->super);
        place(*finder);
    };
    runAndDrop(ctx, look, [&] {
        image = finder->image;
        fz_drop_device(ctx, &finder->super);
    });
}

void DrawablePage::Scan::place(const ScanFinder& found) {
    const fz_rect placed = fz_transform_rect(fz_unit_rect, found.matrix);
    const fz_rect page = recording.bounds;
    if (found.hasOthers != 0 || !found.image || !covers(found.clip, page) || !covers(placed, page))
        return;
    isMask = found.isMask != 0;
    turn = turnOf(found.matrix);
    const bool isUpright = found.matrix.b == 0;
    const float width = float(isUpright ? found.image->w : found.image->h);
    const float height = float(isUpright ? found.image->h : found.image->w);
    const fz_rect seen = fz_intersect_rect(placed, page);
    const auto pixels = [](float length, float of, float all) {
        return int(std::lround(length / of * all));
    };
    const float across = placed.x1 - placed.x0;
    const float down = placed.y1 - placed.y0;
    part =
        QRect(pixels(seen.x0 - placed.x0, across, width), pixels(seen.y0 - placed.y0, down, height),
              pixels(seen.x1 - seen.x0, across, width), pixels(seen.y1 - seen.y0, down, height)) &
        QRect(0, 0, int(width), int(height));
}

QByteArray DrawablePage::scannedJPEG() const {
    const Scan scan(*iRecording);
    if (!scan.turn || scan.isMask)
        return {};
    fz_context* ctx = iRecording->engine.context;
    if (fz_colorspace_is_device(ctx, scan.image->colorspace) == 0)
        return {}; // a browser would show other colours than the page's picture has
    const auto file = plainJPEG(ctx, scan.image);
    const bool isWhole = scan.part == QRect(0, 0, scan.image->w, scan.image->h);
    if (file.empty())
        return {};
    return isWhole && scan.turn == JPEGFile::Turn::none
               ? JPEGFile::withoutMetadata(file)
               : JPEGFile::turned(file, *scan.turn, scan.part);
}

bool DrawablePage::drawScannedInk(PageBitmap& bitmap) const {
    const Scan scan(*iRecording);
    if (!scan.turn || scan.image->bpc != 1 || scan.image->n > 1 ||
        std::size_t(scan.part.width()) * std::size_t(scan.part.height()) >
            PDFLimits::maxBitmapPixels)
        return false;
    fz_pixmap* pixmap = iRecording->engine.get(
        [&](fz_context* ctx) {
            return fz_get_pixmap_from_image(ctx, scan.image, nullptr, nullptr, nullptr, nullptr);
        },
        static_cast<fz_pixmap*>(nullptr));
    fz_context* ctx = iRecording->engine.context;
    const auto drop = [ctx](fz_pixmap* made) { fz_drop_pixmap(ctx, made); };
    const std::unique_ptr<fz_pixmap, decltype(drop)> owner(pixmap, drop);
    if (!pixmap || pixmap->n != 1)
        return false;
    copyTurned(*pixmap, *scan.turn, scan.part, scan.isMask, bitmap);
    return true;
}
