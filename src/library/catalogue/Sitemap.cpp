#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/FeedEntry.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/SiteFiles.h"
#include "library/catalogue/XMLDocument.h"

#include <algorithm>

namespace {

// The format allows so many addresses a file.
constexpr int mostAddresses = 50'000;

const QString schema = QStringLiteral("http://www.sitemaps.org/schemas/sitemap/0.9");

void writeAddress(XMLDocument& xml, const char* element, const QByteArray& address,
                  const QDateTime& changed) {
    xml.start(element);
    xml.text("loc", QString::fromUtf8(address));
    if (changed.isValid())
        xml.text("lastmod", FeedEntry::time(changed));
    xml.end();
}

// The home page is the first address of the first part; a book has two: its page, and itself.
QDateTime writePart(const CatalogueSite& site, const QByteArray& path, int start, int end) {
    QByteArray bytes;
    XMLDocument xml(&bytes);
    QDateTime latest;
    xml.start("urlset", {{"xmlns", schema}});
    if (start == 0)
        writeAddress(xml, "url", site.address(""), {});
    for (int number = start; number < end; ++number) {
        const CatalogueBook book = site.books.at(number);
        writeAddress(xml, "url", site.address(CatalogueLayout::bookPage(book.id)), book.changed);
        writeAddress(xml, "url", site.bookAddress(book), book.changed);
        latest = latest.isValid() ? std::max(latest, book.changed) : book.changed;
    }
    xml.finish();
    site.files.put(path, bytes);
    return latest;
}

} // namespace

void Feeds::writeSitemap(const CatalogueSite& site) {
    const int count = site.books.count();
    constexpr int booksAPart = (mostAddresses - 1) / 2;
    if (count <= booksAPart) {
        writePart(site, CatalogueLayout::sitemap, 0, count);
        return;
    }
    QByteArray bytes;
    XMLDocument xml(&bytes);
    xml.start("sitemapindex", {{"xmlns", schema}});
    for (int start = 0, part = 1; start < count; start += booksAPart, ++part) {
        const QByteArray path = CatalogueLayout::sitemapPart(part);
        const QDateTime latest = writePart(site, path, start, std::min(start + booksAPart, count));
        writeAddress(xml, "sitemap", site.address(path), latest);
    }
    xml.finish();
    site.files.put(CatalogueLayout::sitemap, bytes);
}
