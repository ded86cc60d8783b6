#pragma once

#include <QStringList>

// Detects the book that an earlier publish wrote to a folder. Books of all versions of Folvero are
// recognised.
namespace ExistingBook {

// Whether the folder "files" contains the configuration of a book.
bool isIn(const QString& filesFolder);
// Whether it belongs to a web book.
bool isWebBookIn(const QString& filesFolder);

// Paths, relative to the folder "files", of all files that its pages may have and, for a web book,
// of its additional files. Taken from the book's own configuration, so that no other files are
// included; empty when that can't be read.
QStringList files(const QString& filesFolder);

// Whether a file is the HTML page of a book, including that of a single-file book. The page with
// the book's text is not.
bool isPage(const QString& file);

// Names of the HTML pages of books in a folder, sorted, but "index.html" first.
QStringList pages(const QString& folder);

// The book's title as plain text, from its HTML page; null when the file is no such page.
QString title(const QString& page);

} // namespace ExistingBook
