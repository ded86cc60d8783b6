#pragma once

#include "library/LibraryLayout.h"
#include "server/SearchPool.h"
#include "server/ServerAnswer.h"

#include <QString>

// Answers searches of a library: as JSON, as a page for readers without scripts, and for one book
// as IIIF Content Search. docs/search.md describes them.
class SearchService {
public:
    // The paths of the page, and of what it shows as JSON.
    static inline const QString page = QStringLiteral("search.html");
    static inline const QByteArray path = "/search";

    explicit SearchService(const LibraryLayout& library) : iLibrary(library), iPool(library) {}

    // None for a request that is no search. May be called by several threads at once.
    std::optional<ServerAnswer> answer(const ServerRequest& request);

private:
    ServerAnswer answerWithHits(const ServerRequest& request, bool asPage);
    std::optional<ServerAnswer> answerForBook(const QString& id, const ServerRequest& request);
    std::optional<ServerAnswer> answerWithManifest(const QString& id, const ServerRequest& request);

    LibraryLayout iLibrary;
    SearchPool iPool;
};
