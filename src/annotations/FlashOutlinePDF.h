#pragma once

#include "annotations/FlashOutline.h"
#include "pdf/PDFDocument.h"

#include <memory>

// Reads a PDF's bookmarks as a book's table of contents. Page numbers are those of the PDF,
// whatever page range was imported; an entry that leads to no page has 0.
class FlashOutlinePDF : public FlashOutline {
public:
    // Appends the document's entries; without a document or bookmarks nothing changes.
    void loadOutlineFromPDF(const std::shared_ptr<PDFDocument>& document);

    void addOutelineToItems(FlashOutlineItem& item, const PDFOutlineNode& fromOutline, int atLevel,
                            const PDFDocument& pdfDoc);
};
