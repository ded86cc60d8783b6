#pragma once

#include <QCollator>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

class CatalogueBooks;

// Orders in which books and names are listed.
namespace BookOrder {

using Numbers = std::vector<std::uint32_t>;

// Numbers of books, the newest first.
Numbers newest(const CatalogueBooks& books);

// The same books as readers of the language sort their titles.
Numbers byTitle(const CatalogueBooks& books, Numbers numbers, const QString& language);

// All books, which come by title, by their first authors, and from the newest year; those without
// come last.
Numbers byAuthor(const CatalogueBooks& books, Numbers byTitle, const QString& language);
Numbers byYear(const CatalogueBooks& books, Numbers byTitle);

// The letter below which a text is listed: the first one without marks, in upper case; "#" for
// digits, signs and scripts with more than an alphabet.
QString letterOf(const QString& text);

// What a text is sorted by: it without quotation marks and the like at its start.
QString sortText(const QString& text);

// The same one for each call.
const QCollator& collator(const QString& language);

// Sorts values by a text, equal ones as they are.
template <class Value, class Text>
void sort(std::vector<Value>& values, Text text, const QString& language) {
    const QCollator& order = collator(language);
    std::vector<std::pair<QCollatorSortKey, std::uint32_t>> keys;
    keys.reserve(values.size());
    for (std::size_t place = 0; place < values.size(); ++place)
        keys.emplace_back(order.sortKey(text(values[place])), std::uint32_t(place));
    std::stable_sort(keys.begin(), keys.end(), [](const auto& one, const auto& other) {
        return one.first.compare(other.first) < 0;
    });
    std::vector<Value> sorted;
    sorted.reserve(values.size());
    for (const auto& [key, place] : keys)
        sorted.push_back(std::move(values[place]));
    values.swap(sorted);
}

} // namespace BookOrder
