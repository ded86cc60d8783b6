#pragma once

#include "annotations/FlashOutline.h"
#include "annotations/FlashPagesAnnotations.h"
#include "base/Operation.h"
#include "pages/FlashPageSourcePDF.h"

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

// Imports a PDF in the background: its pages, and its links and outline if requested. Read the
// results once it is finished; a part that failed is null.
class ImportPDFOperation : public Operation {
public:
    ImportPDFOperation(const QString& pdfPath, const QString& pageRange, int dpi, int quality);

    // Set these before the operation is queued.
    bool importLinks() const { return iImportLinks; }
    void setImportLinks(bool on) { iImportLinks = on; }
    bool importBookmarks() const { return iImportBookmarks; }
    void setImportBookmarks(bool on) { iImportBookmarks = on; }

    // The document, if the caller has already opened it and does not use it until the import is
    // finished. By default the import opens the file.
    void setDocument(OpenedPDF document) { iDocument = std::move(document); }

    void main() override;
    // Thread-safe. Also stops the page that is being drawn.
    void cancel() override;

    std::shared_ptr<FlashPageSource> flashPageSource() const { return iFlashPageSource; }
    std::shared_ptr<FlashPagesAnnotations> flashPagesAnnotation() const {
        return iFlashPagesAnnotation;
    }
    std::shared_ptr<FlashOutline> flashOutline() const { return iFlashOutline; }

    // The crop box of the first readable page, if any.
    const std::optional<QRectF>& firstCropBox() const { return iFirstCropBox; }
    // The document's own title, or an empty text.
    const QString& documentTitle() const { return iDocumentTitle; }

    // What went wrong, one text for users per part that failed. There is no page source when the
    // file was changed while it was read or the work folder is full.
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
    // Shared, since the document may outlive the operation.
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
