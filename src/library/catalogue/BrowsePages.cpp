#include "library/catalogue/BrowsePages.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Markup.h"
#include "library/catalogue/ShelfPages.h"
#include "library/catalogue/SitePage.h"

#include <algorithm>
#include <utility>

namespace {

using Kind = BookGroups::Kind;

constexpr std::size_t namesAPage = 400;

struct Name {
    const BookGroup* group;
    QString text;
    QString label; // of the part of the list that it is in; empty for none
};

QString labelOf(const CatalogueSite& site, Kind kind, const QString& name) {
    switch (kind) {
    case Kind::author:
    case Kind::subject:
        return BookOrder::letterOf(name);
    case Kind::year:
        return site.texts.text("decade").replace(QStringLiteral("{0}"),
                                                 QString::number(name.toInt() / 10 * 10));
    case Kind::language:
        break;
    }
    return {};
}

std::vector<Name> namesOf(const CatalogueSite& site, const BookGroups& groups) {
    std::vector<Name> names;
    for (const BookGroup& group : groups.all()) {
        const QString text = site.nameOf(groups, group);
        names.push_back({&group, text, labelOf(site, groups.kind(), text)});
    }
    if (groups.kind() == Kind::language)
        std::stable_sort(names.begin(), names.end(), [](const Name& one, const Name& other) {
            return one.group->count() > other.group->count();
        });
    return names;
}

QByteArray jumps(const CatalogueSite& site, const SitePage& page, const QByteArray& list,
                 const std::vector<Name>& names) {
    QByteArray links;
    QStringList known;
    for (std::size_t place = 0; place < names.size(); ++place) {
        const QString& label = names[place].label;
        if (label.isEmpty() || known.contains(label))
            continue;
        links += "<a href=\"" + page.to(CatalogueLayout::page(list, int(place / namesAPage) + 1)) +
                 "#part-" + QByteArray::number(known.size()) + "\">" + Markup::escaped(label) +
                 "</a>\n";
        known << label;
    }
    if (known.size() < 2)
        return {};
    return "<nav class=\"jumps\" aria-label=\"" + site.texts.html("jumps") + "\">\n" + links +
           "</nav>\n";
}

QByteArray item(const CatalogueSite& site, const SitePage& page, const BookGroups& groups,
                const Name& name) {
    return "<li><a href=\"" + page.to(ShelfPages::pathOf(site, groups, *name.group)) +
           "\"><span dir=\"auto\">" + Markup::escaped(name.text) +
           "</span> <span class=\"count\">" + site.texts.number(name.group->count()) +
           "</span></a></li>\n";
}

// Names below headings with their labels.
QByteArray parts(const CatalogueSite& site, const SitePage& page, const BookGroups& groups,
                 const std::vector<Name>& names, std::size_t start) {
    QStringList before;
    for (std::size_t place = 0; place < start; ++place) {
        const bool isRepeated = place > 0 && names[place].label == names[place - 1].label;
        if (!isRepeated && !before.contains(names[place].label))
            before << names[place].label;
    }
    QByteArray markup;
    QString current;
    for (std::size_t place = start; place < std::min(start + namesAPage, names.size()); ++place) {
        const QString& label = names[place].label;
        if (place == start || label != current) {
            markup += place == start ? "" : "</ul>\n</section>\n";
            markup += "<section>\n";
            if (!label.isEmpty()) {
                const bool isNew = !before.contains(label);
                markup += isNew ? "<h2 id=\"part-" + QByteArray::number(before.size()) + "\">"
                                : QByteArray("<h2>");
                markup += Markup::escaped(label) + "</h2>\n";
                if (isNew)
                    before << label;
            }
            markup += "<ul class=\"names\">\n";
            current = label;
        }
        markup += item(site, page, groups, names[place]);
    }
    return markup + "</ul>\n</section>\n";
}

void writeList(const CatalogueSite& site, const BookGroups& groups) {
    if (groups.isEmpty())
        return;
    const QByteArray list = BookGroups::folder(groups.kind()) + 's';
    const auto names = namesOf(site, groups);
    const int pages = int((names.size() - 1) / namesAPage) + 1;
    for (int number = 1; number <= pages; ++number) {
        SitePage page(site, CatalogueLayout::page(list, number));
        page.section = list;
        page.title = site.texts.html(list.constData());
        page.main = "<div class=\"heading\"><h1>" + page.title + "</h1>\n<p>" +
                    site.texts.number(int(names.size())) + "</p></div>\n" +
                    jumps(site, page, list, names) + "<div class=\"lists\">\n" +
                    parts(site, page, groups, names, std::size_t(number - 1) * namesAPage) +
                    "</div>\n" + page.pager(list, number, pages);
        if (number > 1)
            page.title += " \xc2\xb7 " + site.texts.html("pageNumber", site.texts.number(number));
        page.write();
    }
}

} // namespace

void BrowsePages::write(const CatalogueSite& site) {
    for (const auto* groups : {&site.authors, &site.subjects, &site.languages, &site.years})
        writeList(site, *groups);
}
