#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/FeedEntry.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/SiteFiles.h"
#include "library/catalogue/XMLDocument.h"

#include <QLocale>
#include <algorithm>

namespace {

constexpr std::size_t booksInFeed = 50;

// What a reader of the feed sees of a book, as HTML.
QString summary(const CatalogueSite& site, const CatalogueBook& book) {
    QByteArray html;
    if (!book.cover.isEmpty())
        html += "<p><img src=\"" + site.bookAddress(book) + Markup::path(book.cover) +
                "\" alt=\"\"></p>";
    QStringList facts = book.facts.authors();
    if (!book.facts.date.isEmpty())
        facts << book.facts.date;
    return QString::fromUtf8(html + "<p>" + Markup::escaped(facts.join(QStringLiteral(", "))) +
                             "</p>");
}

std::vector<CatalogueBook> newest(const CatalogueSite& site) {
    std::vector<CatalogueBook> books;
    for (std::size_t i = 0; i < std::min(booksInFeed, site.newest.size()); ++i)
        books.push_back(site.books.at(int(site.newest[i])));
    return books;
}

void writeAtom(const CatalogueSite& site) {
    QByteArray bytes;
    XMLDocument xml(&bytes);
    FeedEntry::startFeed(xml, site, CatalogueLayout::atom, {},
                         QStringLiteral("application/atom+xml"));
    xml.text("updated", FeedEntry::time(FeedEntry::latestChange(site)));
    for (const CatalogueBook& book : newest(site)) {
        FeedEntry::start(xml, site, book);
        xml.text("content", summary(site, book), {{"type", QStringLiteral("html")}});
        xml.end();
    }
    xml.finish();
    site.files.put(CatalogueLayout::atom, bytes);
}

QString mailTime(const QDateTime& time) {
    return QLocale::c().toString(time.toUTC(), QStringLiteral("ddd, dd MMM yyyy HH:mm:ss")) +
           QStringLiteral(" GMT");
}

void writeRSS(const CatalogueSite& site) {
    QByteArray bytes;
    XMLDocument xml(&bytes);
    xml.start("rss", {{"version", QStringLiteral("2.0")},
                      {"xmlns:atom", QStringLiteral("http://www.w3.org/2005/Atom")},
                      {"xmlns:dc", QStringLiteral("http://purl.org/dc/elements/1.1/")}});
    xml.start("channel");
    xml.text("title", site.settings.title);
    xml.text("link", QString::fromUtf8(site.address("")));
    xml.text("description",
             site.texts.text("newsOf").replace(QStringLiteral("{0}"), site.settings.title));
    xml.text("language", site.texts.language());
    xml.text("lastBuildDate", mailTime(FeedEntry::latestChange(site)));
    xml.empty("atom:link", {{"rel", QStringLiteral("self")},
                            {"type", QStringLiteral("application/rss+xml")},
                            {"href", QString::fromUtf8(site.address(CatalogueLayout::rss))}});
    for (const CatalogueBook& book : newest(site)) {
        const QString page = QString::fromUtf8(site.address(CatalogueLayout::bookPage(book.id)));
        xml.start("item");
        xml.text("title", book.facts.title);
        xml.text("link", page);
        xml.text("guid", page);
        xml.text("pubDate", mailTime(book.added));
        for (const QString& author : book.facts.authors())
            xml.text("dc:creator", author);
        for (const QString& subject : book.facts.subjects())
            xml.text("category", subject);
        xml.text("description", summary(site, book));
        xml.end();
    }
    xml.finish();
    site.files.put(CatalogueLayout::rss, bytes);
}

} // namespace

void Feeds::writeNews(const CatalogueSite& site) {
    writeAtom(site);
    writeRSS(site);
}
