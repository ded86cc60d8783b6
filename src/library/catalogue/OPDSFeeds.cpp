#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/FeedEntry.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/SiteFiles.h"
#include "library/catalogue/XMLDocument.h"
#include "system/MediaType.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int booksAPage = 100;
constexpr std::size_t listedNewBooks = 100;

const QString navigation =
    QStringLiteral("application/atom+xml;profile=opds-catalog;kind=navigation");
const QString acquisition =
    QStringLiteral("application/atom+xml;profile=opds-catalog;kind=acquisition");

const QString newRelation = QStringLiteral("http://opds-spec.org/sort/new");
const QString subsection = QStringLiteral("subsection");

QByteArray pathOf(const QByteArray& list, int page) {
    return CatalogueLayout::part("opds/" + list, page, ".xml");
}

QString mediaType(const QString& picture) {
    return QString::fromLatin1(MediaType::ofFile(picture));
}

void link(XMLDocument& xml, const CatalogueSite& site, const QString& relation, const QString& type,
          const QByteArray& path) {
    xml.empty("link",
              {{"rel", relation}, {"type", type}, {"href", QString::fromUtf8(site.address(path))}});
}

void writeEntry(XMLDocument& xml, const CatalogueSite& site, const CatalogueBook& book) {
    FeedEntry::start(xml, site, book);
    const auto bookLink = [&](const char* relation, const QString& type, const QByteArray& path) {
        xml.empty("link", {{"rel", QLatin1String(relation)},
                           {"type", type},
                           {"href", QString::fromUtf8(site.bookAddress(book) + path)}});
    };
    bookLink("http://opds-spec.org/acquisition/open-access", QStringLiteral("text/html"), "");
    if (!book.cover.isEmpty())
        bookLink("http://opds-spec.org/image/thumbnail", mediaType(book.cover),
                 Markup::path(book.cover));
    const QString& picture = book.picture.isEmpty() ? book.cover : book.picture;
    if (!picture.isEmpty())
        bookLink("http://opds-spec.org/image", mediaType(picture), Markup::path(picture));
    xml.end();
}

// The pages of a feed of books.
void writeBooks(const CatalogueSite& site, const QByteArray& list, const QString& title,
                const BookOrder::Numbers& books) {
    const int pages = std::max(1, int((books.size() + booksAPage - 1) / booksAPage));
    for (int page = 1; page <= pages; ++page) {
        QByteArray bytes;
        XMLDocument xml(&bytes);
        const QByteArray path = pathOf(list, page);
        FeedEntry::startFeed(xml, site, path, title, acquisition);
        link(xml, site, QStringLiteral("start"), navigation, CatalogueLayout::opds);
        link(xml, site, QStringLiteral("up"), navigation, CatalogueLayout::opds);
        for (const auto& [relation, target] :
             {std::pair{"first", 1}, {"previous", page - 1}, {"next", page + 1}, {"last", pages}}) {
            if (pages > 1 && target >= 1 && target <= pages)
                link(xml, site, QLatin1String(relation), acquisition, pathOf(list, target));
        }
        std::vector<CatalogueBook> onPage;
        QDateTime changed = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
        const auto end = std::min(std::size_t(page) * booksAPage, books.size());
        for (auto place = std::size_t(page - 1) * booksAPage; place < end; ++place) {
            onPage.push_back(site.books.at(int(books[place])));
            changed = std::max(changed, onPage.back().changed);
        }
        xml.text("updated", FeedEntry::time(changed));
        for (const CatalogueBook& book : onPage)
            writeEntry(xml, site, book);
        xml.finish();
        site.files.put(path, bytes);
    }
}

struct Way {
    QByteArray path;
    QString title;
    QString type;
    QString relation;
    QString content;
};

void writeNavigation(const CatalogueSite& site, const QByteArray& path, const QString& title,
                     const std::vector<Way>& ways) {
    QByteArray bytes;
    XMLDocument xml(&bytes);
    const QString updated = FeedEntry::time(FeedEntry::latestChange(site));
    FeedEntry::startFeed(xml, site, path, title, navigation);
    link(xml, site, QStringLiteral("start"), navigation, CatalogueLayout::opds);
    if (path != CatalogueLayout::opds)
        link(xml, site, QStringLiteral("up"), navigation, CatalogueLayout::opds);
    xml.text("updated", updated);
    for (const Way& way : ways) {
        xml.start("entry");
        xml.text("id", QString::fromUtf8(site.address(way.path)));
        xml.text("title", way.title);
        xml.text("updated", updated);
        xml.text("content", way.content, {{"type", QStringLiteral("text")}});
        link(xml, site, way.relation, way.type, way.path);
        xml.end();
    }
    xml.finish();
    site.files.put(path, bytes);
}

QString countOf(const CatalogueSite& site, std::size_t books) {
    return QString::fromUtf8(site.texts.books(int(books)));
}

void writeLanguages(const CatalogueSite& site, std::vector<Way>& ways) {
    if (site.languages.all().size() < 2)
        return;
    std::vector<Way> languages;
    for (const BookGroup* group : site.languages.largest(SIZE_MAX)) {
        const QByteArray list = "language/" + group->slug;
        const QString name = site.nameOf(site.languages, *group);
        BookOrder::Numbers newestFirst(group->books.rbegin(), group->books.rend());
        writeBooks(site, list, name, newestFirst);
        languages.push_back(
            {pathOf(list, 1), name, acquisition, subsection, countOf(site, group->books.size())});
    }
    const QByteArray path = pathOf("languages", 1);
    const QString title = site.texts.text("languages");
    writeNavigation(site, path, title, languages);
    ways.push_back({path, title, navigation, subsection,
                    QString::fromUtf8(site.texts.number(int(languages.size())))});
}

} // namespace

void Feeds::writeOPDS(const CatalogueSite& site) {
    const BookOrder::Numbers newest(
        site.newest.begin(),
        site.newest.begin() + std::ptrdiff_t(std::min(listedNewBooks, site.newest.size())));
    const QString newTitle = site.texts.text("new");
    const QString allTitle = site.texts.text("title");
    writeBooks(site, "new", newTitle, newest);
    writeBooks(site, "all", allTitle, site.titles);
    std::vector<Way> ways{
        {pathOf("new", 1), newTitle, acquisition, newRelation, countOf(site, newest.size())},
        {pathOf("all", 1), allTitle, acquisition, subsection,
         countOf(site, std::size_t(site.books.count()))}};
    writeLanguages(site, ways);
    writeNavigation(site, CatalogueLayout::opds, {}, ways);
}
