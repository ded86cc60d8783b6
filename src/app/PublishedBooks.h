#pragma once

#include <QString>
#include <optional>

// Where each document was published last and what was typed for it, kept across runs. A document is
// the path of its file; the empty text stands for the demo book.
namespace PublishedBooks {

struct Book {
    QString folder;
    QString name;
    QString title;
    // What a publish replaces as a whole: the book's folder, or an application.
    QString place;
};

// None for a document that was not published, or too long ago.
std::optional<Book> of(const QString& document);

// To be called after a publish: the place is that document's from now on, and nobody else's.
void add(const QString& document, const Book& book);

} // namespace PublishedBooks
