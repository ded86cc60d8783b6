#pragma once

#include "library/search/BookTexts.h"
#include "library/search/LibrarySearch.h"
#include "server/ServerAnswer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <optional>

// Answers for one book of a library in the form of IIIF Content Search 2: a page of annotations
// with the places of what was found on the book's canvases.
class ContentSearch {
public:
    ContentSearch(const LibraryLayout& library, const QString& book, const ServerRequest& request);

    // The book's manifest with this search announced in it; none when the book has no manifest.
    static std::optional<QJsonObject> manifest(const LibraryLayout& library, const QString& book,
                                               const ServerRequest& request);

    // What to search for it.
    LibrarySearch::Options options() const;
    QJsonObject page(const SearchQuery& query, const LibrarySearch::Answer& found);

private:
    // The area of a page of the book, for viewers.
    struct Canvas {
        QString id;
        QSizeF size; // empty: in points
    };

    Canvas canvas(int position) const;
    void add(const SearchQuery& query, int position, QJsonArray& hits, QJsonArray& contexts) const;
    QString addressOfPage(int page) const;

    QString iBook; // its ID
    BookTexts iTexts;
    QJsonArray iCanvases; // of the book's manifest; empty when it has none
    QString iAddress;     // of the book
    QString iTyped;
    int iPage; // one-based
    QJsonArray iIgnored;
};
