#include "Fuzz.h"
#include "base/PlatformException.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "pdf/PDFLimits.h"
#include "pdf/VectorEncoder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int pagesLookedAt = 4;

bool isFinite(const QRectF& rect) {
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
           std::isfinite(rect.height());
}

void checkPage(const PDFPage& page, const std::vector<PDFAnnotation>& annotations, int pages) {
    Fuzz::requireSound(page);
    Fuzz::requireSound(annotations);
    const QRectF& media = page.mediaBox;
    const QRectF& crop = page.cropBox;
    Fuzz::require(isFinite(media) && !media.isEmpty(), "a page has a size");
    Fuzz::require(isFinite(crop) && !crop.isEmpty(), "a page shows something");
    Fuzz::require(media.contains(crop), "the part that is shown lies on the page");
    Fuzz::require(page.rotation >= 0 && page.rotation < 360, "a rotation is less than a turn");
    for (const PDFAnnotation& annotation : annotations)
        Fuzz::require(annotation.destinationPage.value_or(0) >= 0 &&
                          annotation.destinationPage.value_or(0) < pages,
                      "links lead to pages of the document");
}

void checkOutline(const std::vector<PDFOutlineNode>& nodes, int pages, int depth) {
    Fuzz::require(nodes.empty() || depth <= 64, "no entry lies too deep");
    for (const PDFOutlineNode& node : nodes) {
        Fuzz::require(node.destinationPage >= -1 && node.destinationPage < pages,
                      "entries lead to pages of the document");
        checkOutline(node.children, pages, depth + 1);
    }
}

// What the program itself reads.
void readStructure(const QString& path) {
    const auto document = std::make_shared<DrawablePDF>(path);
    for (const char* key : {"Title", "Author"})
        document->information(key);
    const int pages = document->pageCount();
    for (int i = 0; i < std::min(pages, pagesLookedAt); ++i) {
        try {
            const PDFPage page = document->page(i);
            checkPage(page, document->annotations(i), pages);
            page.displaySize();
        } catch (const PlatformException&) {
            continue;
        }
    }
    checkOutline(document->outline(), pages, 1);
    Fuzz::requireSound(document->outline());
    Fuzz::requireSound(document->viewing());
    document->language();
    const auto labels = document->pageLabels().size();
    Fuzz::require(labels == 0 || labels == std::size_t(pages), "all pages have labels, or none");
    Fuzz::importLinks(document, std::min(pages, pagesLookedAt));
}

// What a page worker does, at a size that takes little time.
void drawFirstPage(const QString& path) {
    const DrawablePDF document(path, DrawablePDF::Access::mapped);
    const QSizeF size = document.page(0).displaySize();
    DrawControl control;
    control.timeLimit = std::chrono::milliseconds(300);
    const DrawablePage page(document, 0, control, DrawablePage::Content::picturesAndText);
    PageBitmap bitmap;
    page.draw(100 / std::max({size.width(), size.height(), 1.0}), bitmap);
    for (const int side : {bitmap.width(), bitmap.height()})
        Fuzz::require(side > 0 && side <= PDFLimits::maxBitmapSide,
                      "a drawn page has pixels and keeps within the limits");
    VectorEncoder().encode(page);
    for (const PDFTextLine& line : page.text().lines) {
        Fuzz::require(isFinite(line.box) && !line.words.empty(), "a line lies somewhere");
        for (const PDFTextWord& word : line.words)
            Fuzz::require(!word.text.isEmpty() && std::isfinite(word.start) && word.length >= 0,
                          "a word lies somewhere");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    Fuzz::countComplaints();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString file = Fuzz::fileWith(Fuzz::Input(data, size).rest());
    for (const auto& read : {readStructure, drawFirstPage}) {
        try {
            read(file);
        } catch (const PlatformException& failure) {
            Fuzz::require(!failure.reason().isEmpty(), "a failure has a reason");
        }
    }
    return 0;
}
