#pragma once

#include "pdf/PDFPage.h"
#include "system/FileState.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

class PDFReader;

// One entry of a PDF's outline.
struct PDFOutlineNode {
    QString label;
    // Zero-based index of the target page, or -1 when the entry leads to no page of this document.
    int destinationPage = -1;
    std::vector<PDFOutlineNode> children;
};

// An open PDF file. One thread may use it at a time.
class PDFDocument {
public:
    // How the file is read. mapped is faster, but the process crashes if the file shrinks while it
    // is mapped: only for processes that may crash.
    enum class Access { stream, mapped };

    // Throws PlatformException whose reason says why the file can't be used: missing, unreadable,
    // empty, not a PDF, damaged, or password-protected.
    static std::shared_ptr<PDFDocument> open(const QString& path, Access access = Access::stream);

    // Opens the file in a sandboxed process, so that a file made to crash or hang MuPDF affects
    // only that process: queries then throw, see PDFReader. Pages of such a document can't be
    // drawn. stopped is polled while waiting and cancels reading. Where no such process can be
    // started, the file is read in this one.
    static std::shared_ptr<PDFDocument> openSandboxed(const QString& path,
                                                      std::function<bool()> stopped = {});

    // Ends the reader process, if there is one; it is started again when needed.
    void stopReader() const;

    ~PDFDocument();
    PDFDocument(const PDFDocument&) = delete;
    PDFDocument& operator=(const PDFDocument&) = delete;

    QString path() const;
    // Throws PlatformException (pdfChanged) when the file was replaced or written since it was
    // opened: what was read and drawn may then come from two different documents. The reason is
    // temporary, see Message.
    void checkUnchanged() const;
    int pageCount() const;

    // The page at a zero-based index. The document must outlive it. Throws PlatformException:
    // pageMissing, or pageUnreadable.
    PDFPage page(int index) const;

    // An entry of the information dictionary ("Title", "Author" ...), or a null text.
    QString information(const char* key) const;

    // The document's natural language ("de", "en-GB"), or a null text.
    QString language() const;

    // Page labels ("iv", "A-3") by zero-based index, empty for pages without one. An empty list for
    // a document without page labels.
    std::vector<QString> pageLabels() const;

    // The top-level entries of the outline.
    std::vector<PDFOutlineNode> outline() const;

private:
    friend class PDFPage;
    friend class DrawablePage;
    struct Engine;
    class LabelTree;

    explicit PDFDocument(std::unique_ptr<Engine> engine);
    PDFDocument(QString path, std::unique_ptr<PDFReader> reader);

    QString iPath;
    FileState iState;                   // taken before it was opened
    std::unique_ptr<Engine> iEngine;    // one of
    std::unique_ptr<PDFReader> iReader; // the two
};
