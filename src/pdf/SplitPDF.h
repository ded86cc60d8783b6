#pragma once

#include "pdf/PDFDocument.h"

#include <memory>
#include <vector>

// What becomes of pages that show two pages of a book side by side.
enum class Spreads {
    automatic, // those twice as wide as the first page and as high become two, if most are so
    split,     // landscape pages become two
    keep,
};

// A document whose double pages count as two, in reading order. A half is a page of its own with
// the boxes, links, labels and targets that it has of the whole.
class SplitPDF final : public PDFDocument {
public:
    // Null when there is nothing to split; the document is then to be used as it is.
    static std::shared_ptr<SplitPDF> of(const std::shared_ptr<PDFDocument>& document,
                                        Spreads spreads, bool rightToLeft);

    std::vector<PageRun> runs(const std::vector<PageRun>& ofFile) const override;
    // The same for the text of a page range.
    QString range(const QString& ofDocument) const;

    int pageCount() const override { return int(iCuts.size()); }
    PageCut cut(int index) const override { return iCuts[std::size_t(index)]; }
    PDFPage page(int index) const override;
    std::vector<PDFAnnotation> annotations(int index) const override;
    std::vector<QSizeF> pageSizes() const override;
    QString information(const char* key) const override { return iDocument->information(key); }
    PDFViewing viewing() const override;
    QString language() const override { return iDocument->language(); }
    std::vector<QString> pageLabels() const override;
    std::vector<PDFOutlineNode> outline() const override;
    void checkUnchanged() const override { iDocument->checkUnchanged(); }
    void stopReader() const override { iDocument->stopReader(); }

private:
    SplitPDF(std::shared_ptr<PDFDocument> document, const std::vector<bool>& isDouble,
             bool rightToLeft);
    bool isSplit(int ofDocument) const;
    // Zero-based; -1 for a page that the document lacks.
    int targetPage(int ofDocument, double across = -1) const;
    void redirect(std::vector<PDFOutlineNode>& nodes) const;

    std::shared_ptr<PDFDocument> iDocument;
    bool iIsRightToLeft;
    std::vector<PageCut> iCuts;
    std::vector<int> iFirst; // index of the document's page's first part; one more at the end
};
