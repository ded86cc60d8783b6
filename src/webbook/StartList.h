#pragma once

#include <QByteArray>

struct WebBook;

// What a web book opens with: its settings, its metadata without the outline, and all pages, with
// those alike in one run. A long book's configuration and metadata have hundreds of bytes a page.
namespace StartList {

// As JSON, safe inside a script element and in a text template; null for a book without pages.
// searchParts: the number of files with text to search, 0 for no text.
QByteArray json(const WebBook& book, int searchParts);

} // namespace StartList
