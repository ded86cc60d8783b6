#pragma once

#include "drawing/SpareWorkers.h"
#include "pdf/PDFDocument.h"

#include <functional>
#include <memory>

// A document to be drawn, and workers that were started while it was opened.
struct OpenedPDF {
    std::shared_ptr<PDFDocument> document;
    std::shared_ptr<SpareWorkers> workers;

    // See PDFReader::open().
    static OpenedPDF open(const QString& path, std::function<bool()> stopped = {});
};
