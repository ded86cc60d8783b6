#pragma once

#include "pages/SpareWorkers.h"
#include "platform/PDFDocument.h"

#include <functional>
#include <memory>

// A document that is about to be drawn, and workers that got ready while it was opened.
struct OpenedPDF {
    std::shared_ptr<PDFDocument> document;
    std::shared_ptr<SpareWorkers> workers;

    // As PDFDocument::openSandboxed().
    static OpenedPDF open(const QString& path, std::function<bool()> stopped = {});
};
