#pragma once

#include "library/LibraryLayout.h"
#include "server/SearchPool.h"
#include "server/ServerAnswer.h"

#include <QString>

// Answers searches of a library: as JSON, as a page for readers without scripts, and for one book
// as IIIF Content Search. docs/search.md describes them.
class SearchService {
public:
    // The path of the page.
    static inline const QString page = QStringLiteral("search.html");

    explicit SearchService(const LibraryLayout& library) : iLibrary(library), iPool(library) {}

    // None for a request that is no search. May be called by several threads at once.
    std::optional<ServerAnswer> answer(const ServerRequest& request);

private:
    ServerAnswer answerWithHits(const ServerRequest& request, bool asPage);
    std::optional<ServerAnswer> answerForBook(const ServerRequest& request);

    LibraryLayout iLibrary;
    SearchPool iPool;
};
