#pragma once

#include <QByteArray>

struct Book;

// The picture of a book's first page, for lists of projects.
namespace BookCover {

// A small JPEG file; null when the book has no page whose picture can be read.
QByteArray of(const Book& book);

} // namespace BookCover
