#include "library/catalogue/ShelfPages.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/SitePage.h"

#include <algorithm>
#include <functional>

namespace {

using Kind = BookGroups::Kind;

struct Shelf {
    QByteArray list;    // name of its pages
    QByteArray section; // entry of the menu
    QByteArray title;   // HTML
    QByteArray above;   // markup above the books, after the heading
    const BookOrder::Numbers& books;
    // The label under which a book is found, null where the shelf has none.
    std::function<QString(const CatalogueBook&)> label;
};

struct Label {
    QString text;
    std::uint32_t place; // of its first book
};

int pageOf(std::size_t place) {
    return int(place) / ShelfPages::booksAPage + 1;
}

std::vector<Label> labelsOf(const CatalogueSite& site, const Shelf& shelf) {
    std::vector<Label> labels;
    for (std::uint32_t place = 0; shelf.label && place < shelf.books.size(); ++place) {
        const QString text = shelf.label(site.books.at(int(shelf.books[place])));
        const bool isKnown = std::any_of(labels.begin(), labels.end(),
                                         [&](const Label& label) { return label.text == text; });
        if (!text.isEmpty() && !isKnown)
            labels.push_back({text, place});
    }
    return labels;
}

QByteArray idOf(std::uint32_t place) {
    return "b" + QByteArray::number(place % ShelfPages::booksAPage);
}

QByteArray jumps(const CatalogueSite& site, const SitePage& page, const Shelf& shelf,
                 const std::vector<Label>& labels) {
    if (labels.size() < 2 || shelf.books.size() <= ShelfPages::booksAPage)
        return {};
    QByteArray markup = "<nav class=\"jumps\" aria-label=\"" + site.texts.html("jumps") + "\">\n";
    for (const auto& [text, place] : labels) {
        // Years come by decades.
        const QByteArray label = Markup::escaped(text);
        markup += "<a href=\"" + page.to(CatalogueLayout::page(shelf.list, pageOf(place))) + '#' +
                  idOf(place) + "\">" +
                  (text.size() == 4 ? site.texts.html("decade", label) : label) + "</a>\n";
    }
    return markup + "</nav>\n";
}

void writePage(const CatalogueSite& site, const Shelf& shelf, const std::vector<Label>& labels,
               int number) {
    SitePage page(site, CatalogueLayout::page(shelf.list, number));
    const int pages = std::max(1, pageOf(shelf.books.size() - 1));
    page.section = shelf.section;
    page.title = number == 1 ? shelf.title
                             : shelf.title + " \xc2\xb7 " +
                                   site.texts.html("pageNumber", site.texts.number(number));
    const QByteArray up = page.to("");
    page.main = "<div class=\"heading\"><h1 dir=\"auto\">" + shelf.title + "</h1>\n<p>" +
                site.texts.books(int(shelf.books.size())) + "</p></div>\n" +
                QByteArray(shelf.above).replace("{up}", up) + jumps(site, page, shelf, labels) +
                "<ul class=\"books\">\n";
    const std::size_t start = std::size_t(number - 1) * ShelfPages::booksAPage;
    const std::size_t end = std::min(start + ShelfPages::booksAPage, shelf.books.size());
    for (std::size_t place = start; place < end; ++place) {
        const bool isTarget = std::any_of(labels.begin(), labels.end(),
                                          [&](const Label& label) { return label.place == place; });
        page.main +=
            page.card(shelf.books[place], isTarget ? idOf(std::uint32_t(place)) : QByteArray());
    }
    page.main += "</ul>\n" + page.pager(shelf.list, number, pages);
    page.write();
}

void writeShelf(const CatalogueSite& site, const Shelf& shelf) {
    const auto labels = labelsOf(site, shelf);
    const int pages = shelf.books.empty() ? 1 : pageOf(shelf.books.size() - 1);
    for (int page = 1; page <= pages; ++page)
        writePage(site, shelf, labels, page);
}

QString letterOfTitle(const CatalogueBook& book) {
    return BookOrder::letterOf(book.facts.title);
}

QString letterOfAuthor(const CatalogueBook& book) {
    const QString author = book.firstAuthor();
    return author.isEmpty() ? QString() : BookOrder::letterOf(author);
}

QString decadeOf(const CatalogueBook& book) {
    const int year = book.facts.year();
    return year ? QString::number(year / 10 * 10) : QString();
}

// Links to the same books in the other orders.
QByteArray orderLinks(const CatalogueSite& site, const QByteArray& current) {
    QByteArray markup = "<nav class=\"orders\" aria-label=\"" + site.texts.html("order") + "\">\n";
    for (const QByteArray list : {"title", "author", "year", "new"}) {
        const QByteArray name = "by-" + list;
        markup += "<a href=\"{up}" + CatalogueLayout::page(list, 1) + '"' +
                  (list == current ? " aria-current=\"page\"" : "") + '>' +
                  site.texts.html(name.constData()) + "</a>\n";
    }
    return markup + "</nav>\n";
}

} // namespace

void ShelfPages::writeOrders(const CatalogueSite& site) {
    const QString& language = site.settings.language;
    const auto write = [&](const char* list, const char* section, const BookOrder::Numbers& books,
                           const std::function<QString(const CatalogueBook&)>& label) {
        writeShelf(site,
                   {list, section, site.texts.html(section), orderLinks(site, list), books, label});
    };
    write("title", "title", site.titles, letterOfTitle);
    write("author", "title", BookOrder::byAuthor(site.books, site.titles, language),
          letterOfAuthor);
    write("year", "title", BookOrder::byYear(site.books, site.titles), decadeOf);
    write("new", "new", site.newest, {});
}

void ShelfPages::writeGroups(const CatalogueSite& site, const BookGroups& groups) {
    const QByteArray folder = BookGroups::folder(groups.kind());
    for (const BookGroup& group : groups.all()) {
        if (!hasPages(groups, group))
            continue;
        const auto books = BookOrder::byTitle(site.books, group.books, site.settings.language);
        std::function<QString(const CatalogueBook&)> label;
        if (groups.kind() != Kind::author)
            label = letterOfTitle;
        const QByteArray kind = "<p class=\"kind\"><a href=\"{up}" +
                                CatalogueLayout::page(folder + 's', 1) + "\">" +
                                site.texts.html((folder + 's').constData()) + "</a></p>\n";
        writeShelf(site, {folder + '/' + group.slug, folder + 's',
                          Markup::escaped(site.nameOf(groups, group)), kind, books, label});
    }
}

bool ShelfPages::hasPages(const BookGroups& groups, const BookGroup& group) {
    const bool isOfOne = groups.kind() == Kind::author || groups.kind() == Kind::subject;
    return group.count() > 1 || !isOfOne;
}

QByteArray ShelfPages::pathOf(const CatalogueSite& site, const BookGroups& groups,
                              const BookGroup& group) {
    if (!hasPages(groups, group))
        return CatalogueLayout::bookPage(site.books.at(int(group.books.front())).id);
    return CatalogueLayout::page(BookGroups::folder(groups.kind()) + '/' + group.slug, 1);
}
