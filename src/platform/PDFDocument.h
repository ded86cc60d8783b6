#pragma once

#include "platform/PDFPage.h"

#include <QString>
#include <memory>
#include <vector>

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

    ~PDFDocument();
    PDFDocument(const PDFDocument&) = delete;
    PDFDocument& operator=(const PDFDocument&) = delete;

    QString path() const;
    int pageCount() const;

    // The page at a zero-based index. It must not outlive the document. Throws PlatformException
    // "PDFPageMissing" when the document has no such page or the page can't be read.
    PDFPage page(int index) const;

    // Text of the information dictionary ("Title", "Author" ...), or a null text.
    QString information(const char* key) const;

    // The entries at the top of the outline.
    std::vector<PDFOutlineNode> outline() const;

private:
    friend class PDFPage;
    struct Engine;

    explicit PDFDocument(std::unique_ptr<Engine> engine);

    std::unique_ptr<Engine> iEngine;
};
