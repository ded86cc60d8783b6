#pragma once

#include <QString>
#include <optional>

// Remembers across runs where each document was published last and what was typed for it. A
// document is identified by its path; the empty text is the demo book.
namespace PublishedBooks {

struct Book {
    QString folder;
    QString name;
    QString title;
    // Of web books: where it is on the web, and the pages of a reading sample.
    QString url;
    QString previewPages;
    // What a publish replaces as a whole: the book's folder, or an application.
    QString place;
};

// None for a document that was not published, or too long ago.
std::optional<Book> of(const QString& document);

// Call after a publish: the place is now that document's, and no other's.
void add(const QString& document, const Book& book);

} // namespace PublishedBooks
