#pragma once

class QString;
struct CatalogueSite;

// What other programs read of a catalogue. All of it names absolute addresses.
namespace Feeds {

// The newest books, as Atom and as RSS.
void writeNews(const CatalogueSite& site);
// For book readers: OPDS 1.2.
void writeOPDS(const CatalogueSite& site);
// For search engines: all pages of books, in several files where there are many.
void writeSitemap(const CatalogueSite& site);
// For viewers of IIIF: a collection of the books that have a manifest; none without such books.
void writeCollection(const CatalogueSite& site);
// For harvesters of metadata: a static repository of OAI-PMH. workFile: a path for working.
void writeRepository(const CatalogueSite& site, const QString& workFile);

} // namespace Feeds
