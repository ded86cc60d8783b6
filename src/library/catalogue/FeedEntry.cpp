#include "library/catalogue/FeedEntry.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/XMLDocument.h"

#include <algorithm>

QString FeedEntry::time(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODate);
}

QDateTime FeedEntry::latestChange(const CatalogueSite& site) {
    QDateTime latest = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    for (int number = 0; number < site.books.count(); ++number)
        latest = std::max(latest, site.books.at(number).changed);
    return latest;
}

void FeedEntry::startFeed(XMLDocument& xml, const CatalogueSite& site, const QByteArray& path,
                          const QString& title, const QString& type) {
    const QString address = QString::fromUtf8(site.address(path));
    const QString home = QString::fromUtf8(site.address(""));
    xml.start("feed", {{"xmlns", QStringLiteral("http://www.w3.org/2005/Atom")},
                       {"xmlns:dc", QStringLiteral("http://purl.org/dc/terms/")},
                       {"xml:lang", site.texts.language()}});
    xml.text("id", address);
    xml.text("title", title.isEmpty() ? site.settings.title : title);
    xml.start("author");
    xml.text("name", site.settings.title);
    xml.text("uri", home);
    xml.end();
    xml.empty("link", {{"rel", QStringLiteral("self")}, {"type", type}, {"href", address}});
    xml.empty("link", {{"rel", QStringLiteral("alternate")},
                       {"type", QStringLiteral("text/html")},
                       {"href", home}});
}

void FeedEntry::start(XMLDocument& xml, const CatalogueSite& site, const CatalogueBook& book) {
    const BookFacts& facts = book.facts;
    const QString page = QString::fromUtf8(site.address(CatalogueLayout::bookPage(book.id)));
    xml.start("entry");
    xml.text("id", page);
    xml.text("title", facts.title);
    xml.text("updated", time(book.changed));
    xml.text("published", time(book.added));
    for (const QString& author : facts.authors()) {
        xml.start("author");
        xml.text("name", author);
        xml.end();
    }
    for (const QString& subject : facts.subjects())
        xml.empty("category", {{"term", subject}, {"label", subject}});
    xml.text("rights", facts.rights);
    xml.text("dc:language", facts.language);
    xml.text("dc:issued", facts.isoDate());
    xml.empty("link", {{"rel", QStringLiteral("alternate")},
                       {"type", QStringLiteral("text/html")},
                       {"href", page}});
}
