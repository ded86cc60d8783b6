#include "pages/ImportPDFOperation.h"

#include "annotations/FlashOutlinePDF.h"
#include "annotations/FlashPagesAnnotationsPDF.h"
#include "base/Log.h"
#include "base/PlatformException.h"

#include <utility>

namespace {

constexpr Log operationLog("ImportPDFOperation");

QRectF firstReadableCropBox(const PDFDocument& document) {
    for (int i = 0;; ++i) {
        try {
            return document.page(i).cropBox;
        } catch (const PlatformException& failure) {
            if (failure.kind() != ErrorKind::pageUnreadable)
                throw;
        }
    }
}

Message aboutLinks() {
    //: %1 is the PDF file, %2 tells what is wrong with its links.
    return Message::translate("ImportPDFOperation", "%1: links: %2");
}

// Reports the first page only: there may be thousands.
Message linkFailure(const std::vector<FlashPagesAnnotationsPDF::UnreadPage>& pages) {
    const QString first = QString::number(pages.front().page);
    if (pages.size() == 1)
        return Message::translate("ImportPDFOperation", "page %1: %2")
            .arg(first, pages.front().reason);
    return Message::translate("ImportPDFOperation", "page %1 and %2 more: %3")
        .arg(first, QString::number(pages.size() - 1), pages.front().reason);
}

} // namespace

ImportPDFOperation::ImportPDFOperation(const QString& pdfPath, const QString& pageRange, int dpi,
                                       int quality)
    : iDPI(dpi), iQuality(quality), iPDFPath(pdfPath), iPageRange(pageRange) {}

void ImportPDFOperation::setBook(Book book) {
    {
        const std::lock_guard lock(iMutex);
        std::swap(iBook, book);
        // The cancel may have come before there was a source to stop.
        if (iBook.pageSource && isCancelled())
            iBook.pageSource->setStop(true);
    }
    // The old pages are destroyed outside the lock: deleting their files takes time, and cancel()
    // must not wait.
}

void ImportPDFOperation::fail(ErrorKind kind, const Message& reason) {
    iFailureKind = kind;
    iFailures << reason;
}

void ImportPDFOperation::cancel() {
    // In this order setBook() can't miss a cancel that finds no source.
    Operation::cancel();
    *iStopReading = true;
    const std::lock_guard lock(iMutex);
    if (iBook.pageSource)
        iBook.pageSource->setStop(true);
}

void ImportPDFOperation::main() {
    if (isCancelled())
        return;
    try {
        importStages();
    } catch (const std::exception& failure) {
        iFailures << Message::about(iPDFPath, Message::ofException(failure));
        setBook({});
        throw;
    }
    if (isCancelled()) {
        operationLog.debug(QStringLiteral("import pdf is cancelled"));
        setBook({});
    }
}

// False when there is none.
bool ImportPDFOperation::makeDocument() {
    if (!iMakeDocument)
        return true;
    try {
        iPDFPath = iMakeDocument([stopped = iStopReading] { return stopped->load(); });
        return true;
    } catch (const PlatformException& failure) {
        operationLog.error(failure.reason());
        fail(failure.kind(), failure.message());
        return false;
    }
}

void ImportPDFOperation::importStages() {
    if (!makeDocument())
        return;
    importPages();
    if (!isCancelled() && iImportLinks)
        importPageLinks();
    if (!isCancelled() && iImportBookmarks)
        importOutline();
    if (!isCancelled() && iBook.document)
        checkUnchanged();
}

// A mix of two versions of a document must not replace a good book.
void ImportPDFOperation::checkUnchanged() {
    try {
        iBook.document->checkUnchanged();
    } catch (const PlatformException& failure) {
        operationLog.error(failure.reason());
        iFailures.clear();
        fail(failure.kind(), Message::about(iPDFPath, failure.message()));
        setBook({});
    }
}

void ImportPDFOperation::importPages() {
    try {
        const auto source = std::make_shared<FlashPageSourcePDF>(
            iPDFPath, iPageRange, iDPI, iQuality, std::exchange(iDocument, {}),
            [stopped = iStopReading] { return stopped->load(); }, iSpreads);
        iPageRange = source->pageRange();
        Book book;
        book.pageSource = source;
        book.converter = source->toPageConverter();
        book.document = book.converter->PDFDoc();
        setBook(std::move(book));
        if (const auto& error = source->openError())
            fail(error->kind(), error->message());
        source->toPageConverter()->setFilesOf(iFilesOf);
        source->toPageConverter()->setTakeEarlierPage(iTakeEarlierPage);
        source->startDrawing();
        if (iBook.document)
            readDocumentProperties(*iBook.document);
        operationLog.debug(QStringLiteral("before generate pages"));
        source->generatePages();
        operationLog.debug(QStringLiteral("after generate pages"));
        operationLog.debug(QStringLiteral("before generateNormalPages"));
        source->generateNormalPages();
        operationLog.debug(QStringLiteral("after generateNormalPages"));
        if (!isCancelled() && iBook.document && !iBook.hasDrawnPages())
            reportNothingDrawn();
    } catch (const PlatformException& failure) {
        operationLog.error(
            QStringLiteral("Run Import PDF Operation error,import pages:%1").arg(failure.reason()));
        fail(failure.kind(), Message::about(iPDFPath, failure.message()));
        setBook({});
    }
}

// Before links and bookmarks, which may crash the reader too often for further queries; while the
// first pages are drawn, since it takes as long.
void ImportPDFOperation::readDocumentProperties(const PDFDocument& document) {
    iBook.pageSize = QSize(0, 0);
    try {
        const QRectF box = firstReadableCropBox(document);
        iBook.pageSize = QSize(Book::wholePoints(box.width()), Book::wholePoints(box.height()));
        iBook.documentTitle = document.information("Title").trimmed();
        iBook.rightToLeft = document.isRightToLeft();
    } catch (const PlatformException& failure) {
        operationLog.warn(failure.reason());
    }
}

// The source is kept: a caller may have a use for empty pages.
void ImportPDFOperation::reportNothingDrawn() {
    const auto& failed = iBook.converter->failedPages();
    if (iBook.document->pageCount() == 0)
        fail(ErrorKind::pageMissing,
             Message::translate("ImportPDFOperation",
                                "%1: the document has no pages; the file may be incomplete")
                 .arg(iPDFPath));
    else if (failed.empty())
        fail(ErrorKind::pageMissing,
             Message::translate("ImportPDFOperation", "%1: none of the pages asked for is in it")
                 .arg(iPDFPath));
    else
        fail(ErrorKind::pageUnreadable,
             Message::translate("ImportPDFOperation", "%1: none of the pages could be drawn (%2)")
                 .arg(iPDFPath, failed.front().reason));
}

void ImportPDFOperation::importPageLinks() {
    const auto annotations = std::make_shared<FlashPagesAnnotationsPDF>();
    try {
        annotations->loadLinksFromPDF(iBook.document, iPageRange);
        iBook.annotations = annotations;
        if (!annotations->unreadPages().empty())
            iFailures << aboutLinks().arg(iPDFPath, linkFailure(annotations->unreadPages()));
    } catch (const PlatformException& failure) {
        operationLog.error(
            QStringLiteral("Run Import PDF Operation error,import links:%1").arg(failure.reason()));
        iFailures << aboutLinks().arg(iPDFPath, failure.message());
    }
}

void ImportPDFOperation::importOutline() {
    const auto outline = std::make_shared<FlashOutlinePDF>();
    try {
        outline->loadOutlineFromPDF(iBook.document);
        iBook.outline = outline;
    } catch (const PlatformException& failure) {
        operationLog.error(QStringLiteral("Run Import PDF Operation error,import outline:%1")
                               .arg(failure.reason()));
        //: %1 is the PDF file, %2 tells what is wrong with its bookmarks.
        iFailures << Message::translate("ImportPDFOperation", "%1: bookmarks: %2")
                         .arg(iPDFPath, failure.message());
    }
}
