#pragma once

#include "annotations/FlashPagesAnnotations.h"
#include "base/Message.h"
#include "base/NotificationCenter.h"
#include "pdf/AnnotationBudget.h"
#include "pdf/PDFDocument.h"

#include <QString>
#include <memory>
#include <vector>

// Reads the link annotations of a PDF's pages.
class FlashPagesAnnotationsPDF : public FlashPagesAnnotations {
public:
    struct UnreadPage {
        int page;       // one-based
        Message reason; // for users
    };

    // Reads all pages of the range expression. Pages stay without links when there is no document,
    // when they can't be read, and once the budget is spent. Throws PlatformException for a page
    // that the document lacks, and when reading is stopped.
    void loadLinksFromPDF(std::shared_ptr<PDFDocument> document, const QString& pageRange);

    // The same, one page at a time whenever the main thread's event loop is idle.
    void loadLinksSyncsFromPDF(std::shared_ptr<PDFDocument> document, const QString& pageRange);
    void scheduledScanPage(const Notification& notification);

    // Pages that the last loadLinksFromPDF() could not read, in its order.
    const std::vector<UnreadPage>& unreadPages() const { return iUnreadPages; }

    // Reads the page at the current position of the list.
    void parsePage();

    const std::shared_ptr<PDFDocument>& pdfDoc() const { return iPDFDoc; }
    void setPdfDoc(std::shared_ptr<PDFDocument> document) { iPDFDoc = std::move(document); }

private:
    void begin(std::shared_ptr<PDFDocument> document, const QString& pageRange);

    std::vector<int> iNeedToImportPages;
    std::shared_ptr<PDFDocument> iPDFDoc;
    int iCurrentIndex = 0; // zero-based position in the list
    AnnotationBudget iBudget;
    std::vector<UnreadPage> iUnreadPages;
    NotificationCenter::Subscription iScan;
};
