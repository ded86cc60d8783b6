#include "library/catalogue/BookGroups.h"

#include "library/catalogue/BookOrder.h"
#include "library/catalogue/CatalogueBook.h"
#include "library/catalogue/CatalogueLayout.h"
#include "util/FoldedText.h"

#include <algorithm>

namespace {

QString keyOf(const QString& name) {
    static TextFolder folder;
    const QString folded = folder.folded(name);
    return folded.isEmpty() ? name : folded;
}

} // namespace

BookGroups::BookGroups(Kind kind, const CatalogueBooks& books, const QString& language)
    : iKind(kind) {
    for (int number = 0; number < books.count(); ++number) {
        for (const QString& name : namesOf(kind, books.at(number).facts))
            add(name, std::uint32_t(number));
    }
    for (BookGroup& group : iGroups) {
        const bool isPlain = kind == Kind::year;
        group.slug = isPlain ? group.name.toLatin1()
                             : CatalogueLayout::slug(group.name, keyOf(group.name).toUtf8());
    }
    BookOrder::sort(
        iGroups, [](const BookGroup& group) { return BookOrder::sortText(group.name); }, language);
    if (kind == Kind::year)
        std::reverse(iGroups.begin(), iGroups.end());
    iPlaces.clear();
    for (std::size_t place = 0; place < iGroups.size(); ++place)
        iPlaces[keyOf(iGroups[place].name)] = std::uint32_t(place);
}

void BookGroups::add(const QString& name, std::uint32_t book) {
    const QString key = keyOf(name);
    auto place = iPlaces.find(key);
    if (place == iPlaces.end()) {
        place = iPlaces.insert(key, std::uint32_t(iGroups.size()));
        iGroups.push_back({name, {}, {}});
    }
    auto& books = iGroups[*place].books;
    if (books.empty() || books.back() != book)
        books.push_back(book);
}

const BookGroup* BookGroups::named(const QString& name) const {
    const auto place = iPlaces.find(keyOf(name));
    return place == iPlaces.end() ? nullptr : &iGroups[*place];
}

std::vector<const BookGroup*> BookGroups::largest(std::size_t most) const {
    std::vector<const BookGroup*> found;
    for (const BookGroup& group : iGroups)
        found.push_back(&group);
    const auto end = found.begin() + std::ptrdiff_t(std::min(most, found.size()));
    std::partial_sort(found.begin(), end, found.end(), [](const auto* one, const auto* other) {
        return one->count() != other->count() ? one->count() > other->count() : one < other;
    });
    found.erase(end, found.end());
    return found;
}

QByteArray BookGroups::folder(Kind kind) {
    switch (kind) {
    case Kind::author:
        return "author";
    case Kind::subject:
        return "subject";
    case Kind::language:
        return "language";
    case Kind::year:
        break;
    }
    return "year";
}

QStringList BookGroups::namesOf(Kind kind, const BookFacts& facts) {
    switch (kind) {
    case Kind::author:
        return facts.authors();
    case Kind::subject:
        return facts.subjects();
    case Kind::language:
        return facts.language.isEmpty() ? QStringList() : QStringList(facts.language.toLower());
    case Kind::year:
        break;
    }
    return facts.year() ? QStringList(QString::number(facts.year())) : QStringList();
}
