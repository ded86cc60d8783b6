#pragma once

#include <QDateTime>
#include <QString>

class XMLDocument;
struct CatalogueBook;
struct CatalogueSite;

// What Atom and OPDS feeds share.
namespace FeedEntry {

QString time(const QDateTime& time);

// The latest change of any book; the start of 1970 for none.
QDateTime latestChange(const CatalogueSite& site);

// Opens the element of a feed and writes what every feed has. path: its own, which is its ID;
// title: empty for the library's.
void startFeed(XMLDocument& xml, const CatalogueSite& site, const QByteArray& path,
               const QString& title, const QString& type);

// The same of a book. The entry stays open.
void start(XMLDocument& xml, const CatalogueSite& site, const CatalogueBook& book);

} // namespace FeedEntry
