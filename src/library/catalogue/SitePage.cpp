#include "library/catalogue/SitePage.h"

#include "library/LibraryLayout.h"
#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/SiteFiles.h"

#include <QList>
#include <utility>

namespace {

constexpr char policy[] =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src 'self' "
    "file: data:; style-src 'self' file:; script-src 'self' file:; connect-src 'self'; form-action "
    "'self' file:; "
    "base-uri 'none'\">\n";

constexpr int drawnCovers = 6; // kinds, in the style sheet

// Always the same for the same book.
int kindOfDrawnCover(const QString& id) {
    unsigned sum = 0;
    for (const QChar letter : id)
        sum = sum * 31 + letter.unicode();
    return int(sum % drawnCovers);
}

// In a card that is kept for all pages, in place of the way up from one; no text has it.
constexpr char upMark = '\x01';

// A picture of a book, or a drawn cover with the title.
QByteArray coverBelow(const QByteArray& up, const CatalogueBook& book, const QString& picture,
                      const QByteArray& attributes) {
    if (picture.isEmpty()) {
        return "<span class=\"cover\"><span class=\"drawn drawn-" +
               QByteArray::number(kindOfDrawnCover(book.id)) +
               "\" aria-hidden=\"true\"><span dir=\"auto\">" + Markup::escaped(book.facts.title) +
               "</span></span></span>";
    }
    return "<span class=\"cover\"><img src=\"" + up + LibraryLayout::bookPath(book.id).toUtf8() +
           '/' + Markup::path(picture) + "\" alt=\"\"" + attributes + "></span>";
}

QByteArray link(const QByteArray& address, const QByteArray& attributes, const QByteArray& text) {
    return "<a href=\"" + address + '"' + attributes + '>' + text + "</a>";
}

} // namespace

SitePage::SitePage(const CatalogueSite& site, QByteArray path)
    : iSite(site), iPath(std::move(path)), iUp(CatalogueLayout::up(iPath)) {}

void SitePage::write() const {
    const QByteArray library = Markup::escaped(iSite.settings.title);
    QByteArray page;
    page.reserve(main.size() + 6000);
    page += alike("start", &SitePage::start);
    page += "<title>" + (title.isEmpty() ? library : title + " \xc2\xb7 " + library) + "</title>\n";
    if (!isListed)
        page += "<meta name=\"robots\" content=\"noindex\">\n";
    if (isSearch)
        page += "<script src=\"" + to(CatalogueLayout::script) + "\" defer></script>\n";
    page += feedLinks();
    page += head;
    page += alike("header" + section, &SitePage::header);
    page += main;
    page += alike("footer", &SitePage::footer);
    iSite.files.put(iPath, page);
}

QByteArray SitePage::alike(const QByteArray& what, QByteArray (SitePage::*make)() const) const {
    if (isHome || isSearch)
        return (this->*make)();
    QByteArray& known = iSite.frames[what + ' ' + iUp];
    if (known.isNull())
        known = (this->*make)();
    return known;
}

QByteArray SitePage::start() const {
    return "<!DOCTYPE html>\n<html lang=\"" + iSite.texts.language().toLatin1() +
           (iSite.texts.isRightToLeft() ? "\" dir=\"rtl" : "") +
           "\">\n<head>\n<meta charset=\"utf-8\">\n" + policy +
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n"
           "<link rel=\"stylesheet\" href=\"" +
           to(CatalogueLayout::style) + "\">\n<link rel=\"icon\" href=\"" +
           to(CatalogueLayout::icon) + "\">\n";
}

QByteArray SitePage::header() const {
    // The home page has the name as its heading.
    const QByteArray brand =
        isHome ? QByteArray()
               : link(to(CatalogueLayout::home), " class=\"brand\"",
                      "<span dir=\"auto\">" + Markup::escaped(iSite.settings.title) + "</span>") +
                     '\n';
    return "</head>\n<body>\n<a class=\"skip\" href=\"#main\">" + iSite.texts.html("skip") +
           "</a>\n<header class=\"top\">\n" + brand + menu() +
           (isHome || isSearch ? QByteArray() : searchForm("small")) +
           "</header>\n<main id=\"main\">\n";
}

QByteArray SitePage::feedLinks() const {
    if (iSite.settings.address.isEmpty())
        return {};
    const QByteArray alternate = "<link rel=\"alternate\" type=\"application/";
    const bool isFolder = iPath == CatalogueLayout::home;
    QByteArray links;
    if (isListed)
        links += "<link rel=\"canonical\" href=\"" + iSite.address(isFolder ? "" : iPath) + "\">\n";
    if (isHome) {
        links += alternate + "atom+xml\" href=\"" + to(CatalogueLayout::atom) + "\">\n" +
                 alternate + "rss+xml\" href=\"" + to(CatalogueLayout::rss) + "\">\n" + alternate +
                 "atom+xml;profile=opds-catalog;kind=navigation\" href=\"" +
                 to(CatalogueLayout::opds) + "\">\n";
    }
    return links;
}

QByteArray SitePage::menu() const {
    QList<QByteArray> entries{"title"};
    for (const auto& [groups, entry] : {std::pair{&iSite.authors, "authors"},
                                        {&iSite.subjects, "subjects"},
                                        {&iSite.languages, "languages"},
                                        {&iSite.years, "years"}}) {
        if (!groups->isEmpty())
            entries << entry;
    }
    entries << "new";
    QByteArray markup = "<nav class=\"menu\" aria-label=\"" + iSite.texts.html("menu") + "\">\n";
    for (const QByteArray& entry : entries) {
        markup += link(to(CatalogueLayout::page(entry, 1)),
                       entry == section ? " aria-current=\"page\"" : "",
                       iSite.texts.html(entry.constData())) +
                  '\n';
    }
    return markup + "</nav>\n";
}

QByteArray SitePage::searchForm(const QByteArray& style) const {
    const auto& texts = iSite.texts;
    return "<form class=\"search " + style + "\" role=\"search\" action=\"" +
           to(CatalogueLayout::search) +
           "\">\n<input type=\"search\" name=\"q\" dir=\"auto\" "
           "maxlength=\"200\" autocomplete=\"off\" spellcheck=\"false\" aria-label=\"" +
           texts.html("searchLabel") + "\" placeholder=\"" +
           texts.html(style == "large" ? "searchLabel" : "search") +
           "\">\n<button type=\"submit\">" + texts.html("search") + "</button>\n</form>\n";
}

QByteArray SitePage::footer() const {
    const auto& texts = iSite.texts;
    QByteArray markup = "</main>\n<footer class=\"bottom\">\n<p><span dir=\"auto\">" +
                        Markup::escaped(iSite.settings.title) + "</span> \xc2\xb7 " +
                        texts.books(iSite.books.count()) + "</p>\n";
    if (!iSite.settings.address.isEmpty()) {
        markup += "<p>" + link(to(CatalogueLayout::atom), "", "Atom") + ' ' +
                  link(to(CatalogueLayout::rss), "", "RSS") + ' ' +
                  link(to(CatalogueLayout::opds), "", "OPDS") + "</p>\n";
    }
    return markup + "</footer>\n</body>\n</html>\n";
}

QByteArray SitePage::largeCover(const CatalogueBook& book) const {
    return coverBelow(iUp, book, book.picture.isEmpty() ? book.cover : book.picture, {});
}

QByteArray SitePage::card(std::uint32_t number, const QByteArray& id) const {
    QByteArray& known = iSite.cards[number];
    if (known.isNull())
        known = makeCard(iSite.books.at(int(number)));
    QByteArray markup = id.isEmpty() ? "<li>" : "<li id=\"" + id + "\">";
    markup.reserve(known.size() + 64);
    qsizetype start = 0;
    for (qsizetype at = 0; (at = known.indexOf(upMark, start)) >= 0; start = at + 1) {
        markup += QByteArrayView(known).sliced(start, at - start);
        markup += iUp;
    }
    return markup += QByteArrayView(known).sliced(start);
}

QByteArray SitePage::makeCard(const CatalogueBook& book) const {
    QByteArray markup =
        link(upMark + CatalogueLayout::bookPage(book.id), "",
             coverBelow(QByteArray(1, upMark), book, book.cover, " loading=\"lazy\"") +
                 "<span class=\"name\" dir=\"auto\"" +
                 Markup::lang(book.facts.language, iSite.texts.language()) + '>' +
                 Markup::escaped(book.facts.title) + "</span>");
    const QStringList authors = book.facts.authors();
    if (!authors.isEmpty())
        markup += "<span class=\"by\" dir=\"auto\">" +
                  Markup::escaped(authors.join(QStringLiteral(", "))) + "</span>";
    if (const int year = book.facts.year())
        markup += "<span class=\"year\">" + QByteArray::number(year) + "</span>";
    return markup + "</li>\n";
}

QByteArray SitePage::pager(const QByteArray& list, int page, int count) const {
    if (count < 2)
        return {};
    const auto& texts = iSite.texts;
    const auto step = [&](int target, const char* name, const char* relation) {
        const bool isThere = target >= 1 && target <= count;
        return isThere
                   ? link(to(CatalogueLayout::page(list, target)),
                          QByteArray(" class=\"step\" rel=\"") + relation + '"', texts.html(name))
                   : QByteArray();
    };
    QByteArray markup = "<nav class=\"pager\" aria-label=\"" + texts.html("pages") + "\">\n" +
                        step(page - 1, "previous", "prev");
    int last = 0;
    for (const int target :
         {1, 2, page - 2, page - 1, page, page + 1, page + 2, count - 1, count}) {
        if (target <= last || target > count)
            continue;
        if (target > last + 1)
            markup += "<span class=\"gap\">\xe2\x80\xa6</span>";
        last = target;
        markup += link(to(CatalogueLayout::page(list, target)),
                       " aria-label=\"" + texts.html("pageNumber", texts.number(target)) + '"' +
                           (target == page ? " aria-current=\"page\"" : ""),
                       texts.number(target));
    }
    return markup + step(page + 1, "next", "next") + "</nav>\n";
}
