#pragma once

#include "platform/FileState.h"
#include "platform/PDFPage.h"

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
    // How the file's bytes are read. A mapped file is the fastest, but a file that shrinks while it
    // is mapped ends the process: only for processes that may die.
    enum class Access { stream, mapped };

    // Throws PlatformException whose reason says, in words, why the file can't be used: missing,
    // unreadable, empty, not a PDF, damaged, or protected by a password.
    static std::shared_ptr<PDFDocument> open(const QString& path, Access access = Access::stream);

    // The same with another process that reads the file for this one, so that a file made to break
    // or to busy the PDF engine harms that process only: its questions then throw, see PDFReader.
    // Pages of such a document can't be drawn. stopped, asked while it is read, ends that. Where no
    // such process can be started the file is read here.
    static std::shared_ptr<PDFDocument> openSandboxed(const QString& path,
                                                      std::function<bool()> stopped = {});

    // Lets the process go that reads the file, if there is one, until it is needed again.
    void stopReader() const;

    ~PDFDocument();
    PDFDocument(const PDFDocument&) = delete;
    PDFDocument& operator=(const PDFDocument&) = delete;

    QString path() const;
    // Throws PlatformException "PDFChanged" when there is another file by now, or it was written
    // since it was opened: what is read and drawn of it may be of two documents then. The reason is
    // temporary, see Message.
    void checkUnchanged() const;
    int pageCount() const;

    // The page at a zero-based index. It must not outlive the document. Throws PlatformException
    // "PDFPageMissing" when the document has no such page or the page can't be read.
    PDFPage page(int index) const;

    // Text of the information dictionary ("Title", "Author" ...), or a null text.
    QString information(const char* key) const;

    // The natural language of the text ("de", "en-GB"), or a null text.
    QString language() const;

    // What the pages are called ("iv", "A-3"), by zero-based index, empty texts where they have no
    // name; nothing at all for a document that does not name its pages.
    std::vector<QString> pageLabels() const;

    // The entries at the top of the outline.
    std::vector<PDFOutlineNode> outline() const;

private:
    friend class PDFPage;
    struct Engine;
    class LabelTree;

    explicit PDFDocument(std::unique_ptr<Engine> engine);
    PDFDocument(QString path, std::unique_ptr<PDFReader> reader);

    QString iPath;
    FileState iState;                   // from before it was opened
    std::unique_ptr<Engine> iEngine;    // one of
    std::unique_ptr<PDFReader> iReader; // the two
};
