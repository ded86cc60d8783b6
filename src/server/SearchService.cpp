#include "server/SearchService.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "library/BookID.h"
#include "output/BookLayout.h"
#include "server/ContentSearch.h"
#include "server/SearchResults.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <algorithm>

namespace {

constexpr Log searchLog("SearchService");

// Nobody reads further; each further page costs more than the one before.
constexpr int mostPages = 50;
constexpr int hitsOfPage = 20;

const QByteArray manifestPath = "/" + BookLayout::iiifManifest.toUtf8();

QString parameter(const ServerRequest& request, const char* name) {
    return QString::fromUtf8(request.parameters.value(name));
}

ServerAnswer problem(int status, const QByteArray& words) {
    const QJsonObject object{{QStringLiteral("error"), QString::fromUtf8(words)}};
    return {status, "application/json; charset=utf-8", QJsonDocument(object).toJson(), {}};
}

ServerAnswer missingIndex() {
    return problem(404, "the library has no index yet: folvero library index makes it");
}

ServerAnswer linkedData(const QJsonObject& object) {
    return {200,
            "application/ld+json; charset=utf-8",
            QJsonDocument(object).toJson(QJsonDocument::Compact),
            {}};
}

// The ID in "/books/ID/NAME", null in other paths.
QString bookAt(const QByteArray& path, const QByteArray& name) {
    const QByteArray start = '/' + LibraryLayout::books.toLatin1() + '/';
    if (!path.startsWith(start) || !path.endsWith(name) ||
        path.size() <= start.size() + name.size())
        return {};
    const QString id = QString::fromUtf8(path.mid(start.size()).chopped(name.size()));
    return BookID::problemWith(id).isNull() ? id : QString();
}

// A browser that follows a link; scripts ask for anything or for JSON.
bool wantsPage(const ServerRequest& request) {
    return request.accept.contains("text/html") && !request.accept.contains("application/json");
}

} // namespace

std::optional<ServerAnswer> SearchService::answer(const ServerRequest& request) {
    try {
        const bool isPage = request.path == '/' + page.toLatin1();
        if (isPage || request.path == path)
            return answerWithHits(request, isPage || wantsPage(request));
        if (const QString book = bookAt(request.path, path); !book.isNull())
            return answerForBook(book, request);
        if (const QString book = bookAt(request.path, manifestPath); !book.isNull())
            return answerWithManifest(book, request);
    } catch (const PlatformException& failure) {
        searchLog.warn(failure.reason());
        return problem(500, "the index can't be read");
    }
    return {};
}

ServerAnswer SearchService::answerWithHits(const ServerRequest& request, bool asPage) {
    SearchResults results;
    results.typed = parameter(request, "q");
    results.isTooLong = results.typed.size() > SearchQuery::longest;
    results.page = std::clamp(parameter(request, "page").toInt(), 1, mostPages);
    results.pageSize = hitsOfPage;
    results.lastPage = mostPages;
    const QString book = parameter(request, "book");
    const SearchQuery query(results.typed);
    LibrarySearch::Options options;
    options.book = book.isEmpty() ? QString() : book;
    options.most = hitsOfPage;
    options.first = std::size_t(results.page - 1) * hitsOfPage;
    const auto found = iPool.find(query, options);
    results.hasIndex = found.has_value();
    if (found) {
        results.total = found->count;
        results.isMore = found->isMore;
        for (const auto& hit : found->hits) {
            if (auto shown = PageHit::make(iLibrary, query, hit))
                results.hits.push_back(std::move(*shown));
        }
    }
    results.book = book;
    results.hasCatalogue = QFileInfo::exists(iLibrary.at(BookLayout::defaultPage));
    if (asPage)
        return {200, "text/html; charset=utf-8", results.asPage(), SearchResults::contentPolicy};
    if (!found)
        return missingIndex();
    if (results.isTooLong)
        return problem(400, "the query is too long");
    return {200,
            "application/json; charset=utf-8",
            QJsonDocument(results.asJson()).toJson(QJsonDocument::Compact),
            {}};
}

std::optional<ServerAnswer> SearchService::answerForBook(const QString& id,
                                                         const ServerRequest& request) {
    const SearchQuery query(parameter(request, "q"));
    ContentSearch search(iLibrary, id, request);
    const auto found = iPool.find(query, search.options());
    if (!found)
        return missingIndex();
    return linkedData(search.page(query, *found));
}

std::optional<ServerAnswer> SearchService::answerWithManifest(const QString& id,
                                                              const ServerRequest& request) {
    if (!iPool.hasIndex())
        return {};
    if (const auto manifest = ContentSearch::manifest(iLibrary, id, request))
        return linkedData(*manifest);
    return {};
}
