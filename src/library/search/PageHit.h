#pragma once

#include "library/search/LibrarySearch.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>

// A page that a search has found, as a reader is shown it.
struct PageHit {
    QString book; // its ID
    QString title;
    QString author;
    int position;        // one-based
    QString label;       // what the page is called; empty when that is its position
    QStringList snippet; // every second piece, from the second on, is one that was searched for
    QString address;     // relative to the library; opens the page with the words marked

    // From the book's own files, which may be others than were indexed: none when the book is gone.
    static std::optional<PageHit> make(const LibraryLayout& library, const SearchQuery& query,
                                       const LibrarySearch::Hit& hit);
    QJsonObject asJson() const;

    // The first of the hits in a text and what surrounds it.
    static QStringList snippetOf(const QString& text, const std::vector<SearchQuery::Hit>& hits);
    // The address of a page of a book, relative to the library.
    static QString addressOf(const QString& book, int position);
};
