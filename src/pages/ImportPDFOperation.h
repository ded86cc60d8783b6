#pragma once

#include "annotations/FlashOutline.h"
#include "annotations/FlashPagesAnnotations.h"
#include "base/Operation.h"
#include "pages/Book.h"
#include "pages/FlashPageSourcePDF.h"

#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

// Imports a PDF in the background: its pages, and its links and outline if requested. Read the
// results once it is finished.
class ImportPDFOperation : public Operation {
public:
    ImportPDFOperation(const QString& pdfPath, const QString& pageRange, int dpi, int quality);

    // Set these before the operation is queued.
    bool importLinks() const { return iImportLinks; }
    void setImportLinks(bool on) { iImportLinks = on; }
    bool importBookmarks() const { return iImportBookmarks; }
    void setImportBookmarks(bool on) { iImportBookmarks = on; }

    // Which files pages get; page files by default.
    void setFilesOf(FilesOfPages filesOf) { iFilesOf = std::move(filesOf); }

    // For pages whose files were made before; none by default.
    void setTakeEarlierPage(TakeEarlierPage take) { iTakeEarlierPage = std::move(take); }

    // Which double pages become two; by default none.
    void setSpreads(const SpreadChoice& spreads) { iSpreads = spreads; }

    // The document's password, and the document itself, if the caller has already opened it and
    // does not use it until the import is finished. By default the import opens the file.
    void setDocument(OpenedPDF document) { iDocument = std::move(document); }

    // What makes the document first, on the import's thread; by default it exists. stopped says
    // that the import is cancelled. Returns the document's path; throws PlatformException.
    using MakeDocument = std::function<QString(const std::function<bool()>& stopped)>;
    void setMakeDocument(MakeDocument make) { iMakeDocument = std::move(make); }

    void main() override;
    // Thread-safe. Also stops the page that is being drawn.
    void cancel() override;

    const Book& book() const { return iBook; }
    std::shared_ptr<FlashPageSource> flashPageSource() const { return iBook.pageSource; }
    std::shared_ptr<FlashPagesAnnotations> flashPagesAnnotation() const {
        return iBook.annotations;
    }
    std::shared_ptr<FlashOutline> flashOutline() const { return iBook.outline; }

    // What went wrong, one text for users per part that failed. There is no page source when the
    // file was changed while it was read or the work folder is full.
    const Messages& failures() const { return iFailures; }
    // The kind of the failure that left no pages; none for an unexpected exception.
    std::optional<ErrorKind> failureKind() const { return iFailureKind; }

private:
    void setBook(Book book);
    // For failures that leave no pages.
    void fail(ErrorKind kind, const Message& reason);
    bool makeDocument();
    void importStages();
    void importPages();
    void readDocumentProperties(const PDFDocument& document);
    void reportNothingDrawn();
    void importPageLinks();
    void importOutline();
    void checkUnchanged();

    OpenedPDF iDocument;
    MakeDocument iMakeDocument;
    FilesOfPages iFilesOf = classicFiles;
    TakeEarlierPage iTakeEarlierPage;
    SpreadChoice iSpreads;
    // Shared, since the document may outlive the operation.
    std::shared_ptr<std::atomic<bool>> iStopReading = std::make_shared<std::atomic<bool>>(false);
    std::mutex iMutex; // guards the page source, which cancel() reaches from another thread
    Book iBook;
    int iDPI;
    int iQuality;
    QString iPDFPath;
    QString iPageRange;
    bool iImportBookmarks = false;
    bool iImportLinks = false;
    Messages iFailures;
    std::optional<ErrorKind> iFailureKind;
};
