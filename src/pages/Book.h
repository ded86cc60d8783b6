#pragma once

#include <QSize>
#include <QString>
#include <memory>
#include <utility>

class FlashOutline;
class FlashPageSource;
class FlashPagesAnnotations;
class PDFDocument;
class PDFToSWFPageConverter;

// What an import makes and publishers read: the pages of a book and what belongs to them. A value
// whose copies share the pages; their files exist as long as one of the copies.
struct Book {
    // Null members were not imported, or failed.
    std::shared_ptr<FlashPageSource> pageSource;
    std::shared_ptr<FlashPagesAnnotations> annotations;
    std::shared_ptr<FlashOutline> outline;

    // The PDF that the pages come from, null when it could not be opened, and what draws them. Both
    // are null for pages made from image files.
    std::shared_ptr<PDFDocument> document;
    std::shared_ptr<const PDFToSWFPageConverter> converter;

    // The document's own title, or an empty text.
    QString documentTitle = QStringLiteral("");

    // Whether the document asks to be read from right to left.
    bool rightToLeft = false;

    // The size in points of each page in the configuration. That of a document is its first
    // readable page's, or 0 by 0 when it has none.
    static constexpr QSize defaultPageSize{1080, 1440};
    QSize pageSize = defaultPageSize;

    // A length in points as configurations have it: whole, and within what players can compute
    // with.
    static int wholePoints(double length);

    // Whether at least one page of the document was drawn.
    bool hasDrawnPages() const;
};

// Accessors of what has a book, for the whole of it and for parts.
class HasBook {
public:
    const Book& book() const { return iBook; }
    void setBook(Book value) { iBook = std::move(value); }
    const std::shared_ptr<FlashPageSource>& flashPageSource() const { return iBook.pageSource; }
    void setFlashPageSource(std::shared_ptr<FlashPageSource> value) {
        iBook.pageSource = std::move(value);
    }
    const std::shared_ptr<FlashPagesAnnotations>& flashPagesAnnotations() const {
        return iBook.annotations;
    }
    void setFlashPagesAnnotations(std::shared_ptr<FlashPagesAnnotations> value) {
        iBook.annotations = std::move(value);
    }
    const std::shared_ptr<FlashOutline>& flashOutline() const { return iBook.outline; }
    void setFlashOutline(std::shared_ptr<FlashOutline> value) { iBook.outline = std::move(value); }

protected:
    Book iBook;
};
