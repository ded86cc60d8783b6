#pragma once

#include <QStringList>

// The book that an earlier publish left in a folder. Every version of Folvero is recognised.
namespace ExistingBook {

// Whether the folder "files" holds the configuration of a book.
bool isIn(const QString& filesFolder);
// Whether it is that of a web book.
bool isWebBookIn(const QString& filesFolder);

// Paths, relative to the folder "files" of the book, of all files that its pages may have and, for
// a web book, of what it has beyond. By the book's own configuration, so that nobody else's files
// are among them; none when that can't be read.
QStringList files(const QString& filesFolder);

// Whether a file is the HTML page of a book, that of a book in one file included. The page with the
// book's text is none.
bool isPage(const QString& file);

// Names of the HTML pages of books in a folder, by name but "index.html" first.
QStringList pages(const QString& folder);

// The book's title as plain text, from its HTML page; null when the file is no such page.
QString title(const QString& page);

} // namespace ExistingBook
