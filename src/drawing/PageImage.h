#pragma once

#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "pdf/JPEGEncoder.h"

#include <QString>

// Seconds for each step of making a page file.
struct PageTiming {
    double draw = 0;
    double encode = 0;
    double write = 0;
};

// Makes page files: draws a page, encodes it and writes the file. Used by the page workers and,
// where none can be started, by the program itself. Keeps its buffers from page to page.
class PageImageMaker {
public:
    // factor is the JPEG compression factor, 0 (smallest) to 1 (best).
    PageImageMaker(const DrawablePDF& document, double factor)
        : iDocument(document), iFactor(factor) {}

    // Writes the page with that one-based number to a file, at twice its size in points. The file
    // is written atomically. Throws PlatformException.
    PageTiming make(int page, const QString& path, const DrawControl& control = {});

private:
    const DrawablePDF& iDocument;
    double iFactor;
    PageBitmap iBitmap;
    JPEGEncoder iEncoder;
};
