#pragma once

#include <QByteArray>

class BookAddress;
struct WebBook;

// A description of a web book for other viewers of scanned books: a manifest as the IIIF
// Presentation API 3 defines it.
namespace IIIFManifest {

// Of a book at that address. Pages that are not included have no canvas. An outline entry becomes a
// range of the pages up to the next entry.
QByteArray json(const WebBook& book, const BookAddress& address);

} // namespace IIIFManifest
