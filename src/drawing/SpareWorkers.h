#pragma once

#include "pdf/PDFDocument.h"
#include "system/ChildProcess.h"

#include <functional>
#include <memory>
#include <vector>

// Page workers started before it is known what they are to draw: starting the program takes about
// as long as drawing a page, and can overlap with opening the document. The destructor ends those
// that were not taken.
class SpareWorkers {
public:
    // Starts one per core, up to a small number; none where they can't be started.
    SpareWorkers();

    // Takes one of them, or null when none is left. It waits for its first line.
    std::unique_ptr<ChildProcess> take();

private:
    std::vector<std::unique_ptr<ChildProcess>> iProcesses;
};

// A document to be drawn, and workers that were started while it was opened.
struct OpenedPDF {
    std::shared_ptr<PDFDocument> document;
    std::shared_ptr<SpareWorkers> workers;

    // See PDFReader::open().
    static OpenedPDF open(const QString& path, std::function<bool()> stopped = {});
};
