#include "drawing/OpenedPDF.h"

OpenedPDF OpenedPDF::open(const QString& path, std::function<bool()> stopped) {
    auto workers = std::make_shared<SpareWorkers>();
    return {PDFDocument::openSandboxed(path, std::move(stopped)), std::move(workers)};
}
