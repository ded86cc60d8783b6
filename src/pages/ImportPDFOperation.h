#pragma once

#include "annotations/FlashOutline.h"
#include "annotations/FlashPagesAnnotations.h"
#include "pages/FlashPageSourcePDF.h"
#include "platform/Operation.h"

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

// Imports one PDF in the background: its pages, and its links and outline when asked to. Read the
// results once it is finished; a part that failed is none.
class ImportPDFOperation : public Operation {
public:
    ImportPDFOperation(const QString& pdfPath, const QString& pageRange, int dpi, int quality);

    // Set before the operation is queued.
    bool importLinks() const { return iImportLinks; }
    void setImportLinks(bool on) { iImportLinks = on; }
    bool importBookmarks() const { return iImportBookmarks; }
    void setImportBookmarks(bool on) { iImportBookmarks = on; }

    // The document, when the caller has it open already and leaves it alone until the import is
    // finished; none by default, then the import opens the file.
    void setDocument(OpenedPDF document) { iDocument = std::move(document); }

    void main() override;
    // Also ends a page that is being drawn. From any thread.
    void cancel() override;

    std::shared_ptr<FlashPageSource> flashPageSource() const { return iFlashPageSource; }
    std::shared_ptr<FlashPagesAnnotations> flashPagesAnnotation() const {
        return iFlashPagesAnnotation;
    }
    std::shared_ptr<FlashOutline> flashOutline() const { return iFlashOutline; }

    // Of the document's first page that can be read, or none.
    const std::optional<QRectF>& firstCropBox() const { return iFirstCropBox; }
    // What the document calls itself, or an empty text.
    const QString& documentTitle() const { return iDocumentTitle; }

    // What went wrong, in words for the user, one text per part that failed. There is no page
    // source when the file was changed while it was read or the work folder is full.
    const Messages& failures() const { return iFailures; }

private:
    void setPageSource(std::shared_ptr<FlashPageSourcePDF> source);
    void clearResults();
    void importStages();
    void importPages();
    void readDocumentProperties(const PDFDocument& document);
    void reportNothingDrawn();
    void importPageLinks(const std::shared_ptr<PDFDocument>& document);
    void importOutline(const std::shared_ptr<PDFDocument>& document);
    void checkUnchanged(const PDFDocument& document);

    OpenedPDF iDocument;
    // Outlives the operation, as the document may.
    std::shared_ptr<std::atomic<bool>> iStopReading = std::make_shared<std::atomic<bool>>(false);
    std::mutex iMutex; // guards the page source, which cancel() reaches from another thread
    std::shared_ptr<FlashPageSourcePDF> iFlashPageSource;
    std::shared_ptr<FlashPagesAnnotations> iFlashPagesAnnotation;
    std::shared_ptr<FlashOutline> iFlashOutline;
    std::optional<QRectF> iFirstCropBox;
    QString iDocumentTitle;
    int iDPI;
    int iQuality;
    QString iPDFPath;
    QString iPageRange;
    bool iImportBookmarks = false;
    bool iImportLinks = false;
    Messages iFailures;
};
