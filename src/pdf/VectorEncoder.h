#pragma once

#include "picture/Deflater.h"

#include <QByteArray>
#include <memory>

class DrawablePage;
class SVGWriter;

// Writes pages as vectors, from which the player makes SVG files: see SVGWriter. Images and
// gradients are pictures in them. Reuse one object for the pages of a document, which must outlive
// it: it keeps the glyphs' outlines.
class VectorEncoder {
public:
    VectorEncoder();
    ~VectorEncoder();
    VectorEncoder(const VectorEncoder&) = delete;
    VectorEncoder& operator=(const VectorEncoder&) = delete;

    // The page in points, on white, as zlib packs it. Empty for a file of more bytes, for a page
    // with effects that only a bitmap shows correctly, and for one that a browser would take
    // seconds to draw. What lies outside the page is left out: the publisher does not see it.
    // Throws PlatformException as DrawablePage does.
    QByteArray encode(const DrawablePage& page, qint64 mostBytes = qint64{1} << 30);

private:
    std::unique_ptr<SVGWriter> iWriter;
    Deflater iDeflater{9};
};
