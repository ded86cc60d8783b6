#include "app/PublishedBooks.h"

#include <QSettings>
#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr char listKey[] = "publishedBooks";
constexpr char documentKey[] = "document";
constexpr char folderKey[] = "folder";
constexpr char nameKey[] = "name";
constexpr char titleKey[] = "title";
constexpr char urlKey[] = "url";
constexpr char previewPagesKey[] = "previewPages";
constexpr char placeKey[] = "place";
constexpr int maxBooks = 200;

using Entry = std::pair<QString, PublishedBooks::Book>;

// Most recent first.
std::vector<Entry> stored() {
    QSettings settings;
    // The file may have any number.
    std::vector<Entry> entries(
        std::size_t(std::clamp(settings.beginReadArray(QLatin1String(listKey)), 0, maxBooks)));
    const auto text = [&settings](const char* key) {
        return settings.value(QLatin1String(key)).toString();
    };
    for (std::size_t i = 0; i < entries.size(); ++i) {
        settings.setArrayIndex(int(i));
        entries[i] = {text(documentKey),
                      {text(folderKey), text(nameKey), text(titleKey), text(urlKey),
                       text(previewPagesKey), text(placeKey)}};
    }
    return entries;
}

void store(const std::vector<Entry>& entries) {
    QSettings settings;
    settings.remove(QLatin1String(listKey));
    settings.beginWriteArray(QLatin1String(listKey));
    int index = 0;
    for (const auto& [document, book] : entries) {
        settings.setArrayIndex(index++);
        for (const auto& [key, value] : {std::pair(documentKey, document),
                                         {folderKey, book.folder},
                                         {nameKey, book.name},
                                         {titleKey, book.title},
                                         {urlKey, book.url},
                                         {previewPagesKey, book.previewPages},
                                         {placeKey, book.place}})
            settings.setValue(QLatin1String(key), value);
    }
    settings.endArray();
}

} // namespace

std::optional<PublishedBooks::Book> PublishedBooks::of(const QString& document) {
    for (const auto& [of, book] : stored()) {
        if (of == document)
            return book;
    }
    return std::nullopt;
}

void PublishedBooks::add(const QString& document, const Book& book) {
    std::vector<Entry> entries = stored();
    std::erase_if(entries, [&](const Entry& entry) {
        return entry.first == document || entry.second.place == book.place;
    });
    entries.emplace(entries.begin(), document, book);
    entries.resize(std::min(entries.size(), std::size_t{maxBooks}));
    store(entries);
}
