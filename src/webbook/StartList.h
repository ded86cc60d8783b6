#pragma once

#include <QByteArray>
#include <vector>

struct TextParts;
struct WebBook;

// What a web book opens with: its settings, its metadata without the outline, and all pages, with
// those alike in one run. A long book's configuration and metadata have hundreds of bytes a page.
namespace StartList {

// As JSON, safe inside a script element and in a text template; null for a book without pages.
// next: positions of pages whose pictures are requested before the first has arrived
QByteArray json(const WebBook& book, const TextParts& parts, const std::vector<int>& next = {});

} // namespace StartList
