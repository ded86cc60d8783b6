#pragma once

#include <QStringList>

class BookLayout;
class FlashTemplate;

// Finds files that a publish would replace or remove although we did not make them. The publishers'
// foreignFiles() combine these functions; callers use those.
namespace ForeignFiles {

// Whether something of that name could be lost: an empty file has no content. A link counts,
// wherever it points.
bool isThere(const QString& path);

// The HTML page, unless it is a book's; at most one path. A folder is left out, since publishing
// fails there anyway.
QStringList page(const QString& path);

// For a folder without a book: paths of existing files where a book has its configuration, pages
// and template files, or the additional files of a web book.
QStringList ofBook(const BookLayout& book, const FlashTemplate* flashTemplate);
QStringList ofWebBook(const BookLayout& book);

} // namespace ForeignFiles
