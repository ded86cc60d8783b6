#pragma once

#include "picture/ColourReducer.h"
#include "picture/JPEGEncoder.h"
#include "picture/PNGEncoder.h"
#include "picture/PageBitmap.h"

#include <QByteArray>
#include <functional>
#include <mupdf/fitz.h>
#include <span>

// A part of a page that is drawn by itself, on nothing.
struct SVGDrawing {
    fz_rect area;    // in points
    float scale = 1; // pixels per point
    // Draws on a device whose pixels the matrix leads to from points. May raise MuPDF errors.
    std::function<void(fz_device* device, const fz_matrix& toPixels)> draw;
};

// Makes pictures of what SVG has no element for. Reuse one object: it keeps its buffers.
class SVGPictures {
public:
    struct Picture {
        QByteArray address; // a data URL; empty when it can't be drawn
        fz_rect area{};     // in points, of whole pixels
    };

    // Never raises MuPDF errors; throws PlatformException and std::bad_alloc.
    Picture make(fz_context* ctx, const SVGDrawing& drawing);

    static QByteArray addressOf(const char* type, std::span<const unsigned char> file);

private:
    QByteArray encode(fz_context* ctx, fz_pixmap* pixmap);
    QByteArray encodeOpaque(const fz_pixmap& pixmap);

    PageBitmap iBitmap;
    ColourReducer iReducer;
    PNGEncoder iPNGEncoder;
    JPEGEncoder iJPEGEncoder;
};
