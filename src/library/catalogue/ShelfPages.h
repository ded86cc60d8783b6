#pragma once

#include "library/catalogue/BookOrder.h"

#include <QByteArray>
#include <functional>

struct BookGroup;
class BookGroups;
struct CatalogueBook;
struct CatalogueSite;

// Pages that show books by their covers.
namespace ShelfPages {

inline constexpr int booksAPage = 60;

// All books: by title, author and year, and the newest ones.
void writeOrders(const CatalogueSite& site);

// Those of each group; authors and subjects with a single book need no page, since what would lead
// there leads to the book.
void writeGroups(const CatalogueSite& site, const BookGroups& groups);

// Where links to a group lead, in the library's folder.
QByteArray pathOf(const CatalogueSite& site, const BookGroups& groups, const BookGroup& group);
bool hasPages(const BookGroups& groups, const BookGroup& group);

} // namespace ShelfPages
