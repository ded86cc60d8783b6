#pragma once

#include "pdf/PDFPage.h"
#include "pdf/PageCut.h"
#include "system/FileState.h"
#include "util/PageRange.h"

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

// One entry of a PDF's outline.
struct PDFOutlineNode {
    QString label;
    // Zero-based index of the target page, or -1 when the entry leads to no page of this document.
    int destinationPage = -1;
    std::vector<PDFOutlineNode> children;
    // Where on the target page, see PDFAnnotation.
    double destinationAcross = -1;
};

// What can be read from a PDF, in this process (DrawablePDF) or by another one (PDFReader). Queries
// throw PlatformException, and pageMissing for a page that the document does not have. One thread
// may use it at a time.
class PDFDocument {
public:
    virtual ~PDFDocument() = default;
    PDFDocument(const PDFDocument&) = delete;
    PDFDocument& operator=(const PDFDocument&) = delete;

    const QString& path() const { return iPath; }
    // What it was opened with, in UTF-8; empty for none.
    const QByteArray& password() const { return iPassword; }
    // Throws PlatformException (pdfChanged) when the file was replaced or written since it was
    // opened: what was read and drawn may then come from two different documents. The reason is
    // temporary, see Message. A new mode or hard link is no change where the content is known.
    virtual void checkUnchanged() const;
    // The state that counts as opened, for callers that read the file before, and Files::digest()
    // of what they read.
    void setOpenedState(const FileState& state, const QByteArray& digest);
    // Reads the whole file for checkUnchanged(), unless the digest was given.
    void rememberContent();

    virtual int pageCount() const = 0;
    // Throws PlatformException (pageMissing) unless there is a page at that zero-based index.
    void requirePage(int index) const;

    // What the page at a zero-based index shows of the file.
    virtual PageCut cut(int index) const { return index; }

    // The numbers of this document's pages for those of the file's.
    virtual std::vector<PageRun> runs(const std::vector<PageRun>& ofFile) const { return ofFile; }

    // The sizes of all pages as displayed, in points; empty ones for pages that can't be read.
    virtual std::vector<QSizeF> pageSizes() const = 0;

    // The page at a zero-based index, and its annotations. Throw pageUnreadable, too.
    virtual PDFPage page(int index) const = 0;
    virtual std::vector<PDFAnnotation> annotations(int index) const = 0;

    // An entry of the information dictionary ("Title", "Author" ...), or a null text.
    virtual QString information(const char* key) const = 0;

    virtual PDFViewing viewing() const = 0;
    // Whether it asks to be read from right to left; false when that can't be read.
    bool isRightToLeft() const;

    // The document's natural language ("de", "en-GB"), or a null text.
    virtual QString language() const = 0;

    // Page labels ("iv", "A-3") by zero-based index, empty for pages without one. An empty list for
    // a document without page labels.
    virtual std::vector<QString> pageLabels() const = 0;

    // The top-level entries of the outline.
    virtual std::vector<PDFOutlineNode> outline() const = 0;

    // Ends the process that reads, if there is one, until the next query. A document may stay open
    // for hours.
    virtual void stopReader() const {}

protected:
    // Does not open the file.
    explicit PDFDocument(const QString& path, QByteArray password = {})
        : iPath(path), iPassword(std::move(password)), iState(FileState::of(path)) {}

private:
    QString iPath;
    QByteArray iPassword;
    mutable FileState iState; // before it was opened, or since, with the same content
    QByteArray iDigest;       // empty when it isn't known
};
