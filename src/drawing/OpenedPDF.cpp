#include "drawing/OpenedPDF.h"

#include "pdf/PDFReader.h"

OpenedPDF OpenedPDF::open(const QString& path, std::function<bool()> stopped) {
    auto workers = std::make_shared<SpareWorkers>();
    return {PDFReader::open(path, std::move(stopped)), std::move(workers)};
}
