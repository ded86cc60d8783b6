#include "library/catalogue/HomePage.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/ShelfPages.h"
#include "library/catalogue/SitePage.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

constexpr std::size_t shownNewBooks = 12;
constexpr std::size_t namesInList = 10;
constexpr std::size_t mostBars = 24;
constexpr int chartHeight = 72;
constexpr int barWidth = 20;

QByteArray newest(const CatalogueSite& site, const SitePage& page) {
    QByteArray markup = "<section class=\"row\">\n<h2><a href=\"" +
                        page.to(CatalogueLayout::page("new", 1)) + "\">" + site.texts.html("new") +
                        "</a></h2>\n<ul class=\"books\">\n";
    for (std::size_t place = 0; place < std::min(shownNewBooks, site.newest.size()); ++place)
        markup += page.card(site.newest[place]);
    return markup + "</ul>\n</section>\n";
}

QByteArray names(const CatalogueSite& site, const SitePage& page, const BookGroups& groups) {
    if (groups.isEmpty())
        return {};
    const QByteArray list = BookGroups::folder(groups.kind()) + 's';
    QByteArray markup = "<section>\n<h2><a href=\"" + page.to(CatalogueLayout::page(list, 1)) +
                        "\">" + site.texts.html(list.constData()) +
                        "</a></h2>\n<ul class=\"names\">\n";
    for (const BookGroup* group : groups.largest(namesInList)) {
        markup += "<li><a href=\"" + page.to(ShelfPages::pathOf(site, groups, *group)) +
                  "\"><span dir=\"auto\">" + Markup::escaped(site.nameOf(groups, *group)) +
                  "</span> <span class=\"count\">" + site.texts.number(group->count()) +
                  "</span></a></li>\n";
    }
    return markup + "</ul>\n</section>\n";
}

// A bar for each decade, up to the newest ones that fit.
QByteArray decades(const CatalogueSite& site, const SitePage& page) {
    std::map<int, int> counts;
    for (const BookGroup& group : site.years.all())
        counts[group.name.toInt() / 10] += group.count();
    if (counts.size() < 2)
        return {};
    const int last = counts.rbegin()->first;
    const int first = std::max(counts.begin()->first, last - int(mostBars) + 1);
    int most = 0;
    for (const auto& [decade, count] : counts)
        most = decade >= first ? std::max(most, count) : most;
    QByteArray bars;
    for (int decade = first; decade <= last; ++decade) {
        const auto found = counts.find(decade);
        const int height =
            found == counts.end() ? 0 : std::max(3, found->second * chartHeight / most);
        bars += "<rect x=\"" + QByteArray::number((decade - first) * barWidth + 2) + "\" y=\"" +
                QByteArray::number(chartHeight - height) + "\" width=\"" +
                QByteArray::number(barWidth - 4) + "\" height=\"" + QByteArray::number(height) +
                "\" rx=\"2\"/>";
    }
    const QByteArray width = QByteArray::number((last - first + 1) * barWidth);
    const QByteArray path = page.to(CatalogueLayout::page("years", 1));
    return "<section class=\"decades\">\n<h2><a href=\"" + path + "\">" + site.texts.html("years") +
           "</a></h2>\n<svg viewBox=\"0 0 " + width + ' ' + QByteArray::number(chartHeight) +
           "\" preserveAspectRatio=\"none\" aria-hidden=\"true\">" + bars + "</svg>\n<p><span>" +
           QByteArray::number(first * 10) + "</span><span>" + QByteArray::number(last * 10 + 9) +
           "</span></p>\n</section>\n";
}

} // namespace

void HomePage::write(const CatalogueSite& site) {
    SitePage page(site, CatalogueLayout::home);
    page.isHome = true;
    page.main = "<div class=\"hero\">\n<h1 dir=\"auto\">" + Markup::escaped(site.settings.title) +
                "</h1>\n<p>" + site.texts.books(site.books.count()) + "</p>\n" +
                page.searchForm("large") + "</div>\n" + newest(site, page) +
                "<div class=\"ways\">\n" + names(site, page, site.subjects) +
                names(site, page, site.authors) + names(site, page, site.languages) +
                decades(site, page) + "</div>\n";
    page.write();
}
