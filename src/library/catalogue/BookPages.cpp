#include "library/catalogue/BookPages.h"

#include "library/LibraryLayout.h"
#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/ShelfPages.h"
#include "library/catalogue/SitePage.h"
#include "output/BookLayout.h"
#include "output/WebScript.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <utility>

namespace {

using Kind = BookGroups::Kind;

constexpr std::size_t booksInRow = 6;

QByteArray meta(const char* name, const QString& content) {
    if (content.isEmpty())
        return {};
    return QByteArray("<meta name=\"") + name + "\" content=\"" + Markup::escaped(content) +
           "\">\n";
}

QByteArray dublinCore(const CatalogueSite& site, const CatalogueBook& book) {
    const BookFacts& facts = book.facts;
    QByteArray markup = "<link rel=\"schema.DC\" href=\"http://purl.org/dc/elements/1.1/\">\n" +
                        meta("DC.title", facts.title);
    for (const QString& author : facts.authors())
        markup += meta("DC.creator", author);
    for (const QString& subject : facts.subjects())
        markup += meta("DC.subject", subject);
    markup += meta("DC.date", facts.date) + meta("DC.language", facts.language) +
              meta("DC.rights", facts.rights) + meta("DC.type", QStringLiteral("Text")) +
              meta("DC.format", QStringLiteral("text/html"));
    const bool isPlaced = !site.settings.address.isEmpty();
    return markup +
           meta("DC.identifier", isPlaced ? QString::fromUtf8(site.bookAddress(book)) : book.id);
}

QJsonArray people(const QStringList& names) {
    QJsonArray array;
    for (const QString& name : names)
        array << QJsonObject{{QStringLiteral("@type"), QStringLiteral("Person")},
                             {QStringLiteral("name"), name}};
    return array;
}

QByteArray linkedData(const CatalogueSite& site, const CatalogueBook& book) {
    const BookFacts& facts = book.facts;
    QJsonObject linked{{QStringLiteral("@context"), QStringLiteral("https://schema.org")},
                       {QStringLiteral("@type"), QStringLiteral("Book")},
                       {QStringLiteral("bookFormat"), QStringLiteral("https://schema.org/EBook")},
                       {QStringLiteral("name"), facts.title},
                       {QStringLiteral("identifier"), book.id}};
    const auto add = [&](const char* key, const QString& value) {
        if (!value.isEmpty())
            linked[QLatin1String(key)] = value;
    };
    if (!facts.authors().isEmpty())
        linked[QStringLiteral("author")] = people(facts.authors());
    if (book.pages > 0)
        linked[QStringLiteral("numberOfPages")] = book.pages;
    add("datePublished", facts.isoDate());
    add("inLanguage", facts.language);
    add("license", facts.rights.startsWith(u"http") ? facts.rights : QString());
    add("keywords", facts.subjects().join(QStringLiteral(", ")));
    if (!site.settings.address.isEmpty()) {
        add("url", QString::fromUtf8(site.bookAddress(book)));
        if (!book.cover.isEmpty())
            add("image", QString::fromUtf8(site.bookAddress(book) + Markup::path(book.cover)));
    }
    return "<script type=\"application/ld+json\">" + WebScript::json(linked) + "</script>\n";
}

QByteArray groupLinks(const CatalogueSite& site, const SitePage& page, const BookGroups& groups,
                      const CatalogueBook& book) {
    QByteArray markup;
    for (const QString& name : BookGroups::namesOf(groups.kind(), book.facts)) {
        const BookGroup* group = groups.named(name);
        const bool isLink = group && ShelfPages::hasPages(groups, *group);
        const QString shown =
            group && groups.kind() == Kind::language ? site.nameOf(groups, *group) : name;
        markup += isLink ? "<a dir=\"auto\" href=\"" +
                               page.to(ShelfPages::pathOf(site, groups, *group)) + "\">"
                         : QByteArray("<span dir=\"auto\">");
        markup += Markup::escaped(shown) + (isLink ? "</a>\n" : "</span>\n");
    }
    return markup;
}

QByteArray rightsOf(const QString& rights) {
    const QByteArray text = Markup::escaped(rights);
    const bool isAddress = rights.startsWith(u"https://") || rights.startsWith(u"http://");
    return isAddress        ? "<a rel=\"license\" href=\"" + text + "\">" + text + "</a>"
           : text.isEmpty() ? text
                            : "<span dir=\"auto\">" + text + "</span>";
}

QByteArray factList(const CatalogueSite& site, const SitePage& page, const CatalogueBook& book) {
    QByteArray markup = "<dl class=\"facts\">\n";
    const auto add = [&](const char* name, const QByteArray& value) {
        if (!value.isEmpty())
            markup += "<div><dt>" + site.texts.html(name) + "</dt><dd>" + value + "</dd></div>\n";
    };
    const QByteArray year = groupLinks(site, page, site.years, book);
    const bool isYear = book.facts.date == QString::number(book.facts.year());
    add(isYear ? "year" : "date", isYear ? year : Markup::escaped(book.facts.date));
    add("language", groupLinks(site, page, site.languages, book));
    add("extent", book.pages > 0
                      ? site.texts.counted(book.pages == 1 ? "onePage" : "manyPages", book.pages)
                      : QByteArray());
    add("subject", groupLinks(site, page, site.subjects, book));
    add("rights", rightsOf(book.facts.rights));
    if (book.added.isValid())
        add("added", book.added.date().toString(Qt::ISODate).toLatin1());
    return markup + "</dl>\n";
}

QByteArray actions(const CatalogueSite& site, const SitePage& page, const CatalogueBook& book) {
    const QByteArray folder = page.to(LibraryLayout::bookPath(book.id).toUtf8() + '/');
    QByteArray markup = "<p class=\"actions\"><a class=\"read\" href=\"" + folder +
                        BookLayout::defaultPage.toLatin1() + "\">" + site.texts.html("read") +
                        "</a>";
    if (book.hasTextPage)
        markup += "\n<a class=\"text\" href=\"" + folder + BookLayout::textPage.toLatin1() + "\">" +
                  site.texts.html("text") + "</a>";
    return markup + "</p>\n";
}

// The next books of the same author or else of the first subject that has others.
QByteArray others(const CatalogueSite& site, const SitePage& page, const CatalogueBook& book,
                  std::uint32_t number) {
    for (const auto* groups : {&site.authors, &site.subjects}) {
        for (const QString& name : BookGroups::namesOf(groups->kind(), book.facts)) {
            const BookGroup* group = groups->named(name);
            if (!group || group->count() < 2)
                continue;
            const auto& books = group->books;
            const auto own = std::lower_bound(books.begin(), books.end(), number) - books.begin();
            const std::size_t count = std::min(booksInRow, books.size() - 1);
            QByteArray markup =
                "<section class=\"row\">\n<h2><a href=\"" +
                page.to(ShelfPages::pathOf(site, *groups, *group)) + "\">" +
                site.texts.html(groups->kind() == Kind::author ? "moreBy" : "moreOn",
                                "<span dir=\"auto\">" + Markup::escaped(group->name) + "</span>") +
                "</a></h2>\n<ul class=\"books\">\n";
            for (std::size_t step = 1; step <= count; ++step)
                markup += page.card(books[(std::size_t(own) + step) % books.size()]);
            return markup + "</ul>\n</section>\n";
        }
    }
    return {};
}

void writePage(const CatalogueSite& site, int number) {
    const CatalogueBook book = site.books.at(number);
    SitePage page(site, CatalogueLayout::bookPage(book.id));
    page.title = Markup::escaped(book.facts.title);
    page.head = dublinCore(site, book) + linkedData(site, book);
    const QByteArray authors = groupLinks(site, page, site.authors, book);
    const QByteArray lang = Markup::lang(book.facts.language, site.texts.language());
    page.main = "<article class=\"book\">\n" + page.largeCover(book) +
                "\n<div class=\"about\">\n<h1 dir=\"auto\"" + lang + ">" + page.title + "</h1>\n" +
                (authors.isEmpty() ? QByteArray() : "<p class=\"authors\">" + authors + "</p>\n") +
                actions(site, page, book) + factList(site, page, book) + "</div>\n</article>\n" +
                others(site, page, book, std::uint32_t(number));
    page.write();
}

} // namespace

void BookPages::write(const CatalogueSite& site) {
    for (int number = 0; number < site.books.count(); ++number)
        writePage(site, number);
}
