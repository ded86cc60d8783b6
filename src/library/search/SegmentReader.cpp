#include "library/search/SegmentReader.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "library/search/SearchSegments.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Log readerLog("SegmentReader");

// How many matches are still to be ranked.
struct Ranking {
    qint64 left = 0;
};

// The longer a page, the less a word on it says. Of a usual page:
constexpr double usualWords = 400;

// How well a page fits: the usual formula (BM25) without the words' rarity. To know that, FTS5
// would read every match of each word beforehand; and a page has all of the words anyway.
void score(const Fts5ExtensionApi* api, Fts5Context* page, sqlite3_context* result,
           int /*arguments*/, sqlite3_value** /*values*/) {
    constexpr double often = 1.2;        // from how many times on more of them say little
    constexpr double lengthCounts = 0.5; // more would put nearly empty pages first
    constexpr int mostCounted = 20;
    auto& ranking = *static_cast<Ranking*>(api->xUserData(page));
    if (ranking.left <= 0)
        return ::sqlite3_result_double(result, 0);
    --ranking.left;
    int words = 0;
    api->xColumnSize(page, -1, &words);
    const double length = 1 - lengthCounts + lengthCounts * words / usualWords;
    double all = 0;
    for (int phrase = 0; phrase < api->xPhraseCount(page); ++phrase) {
        Fts5PhraseIter at{};
        int column = 0;
        int offset = 0;
        int count = 0;
        api->xPhraseFirst(page, phrase, &at, &column, &offset);
        for (; column >= 0 && count < mostCounted; ++count)
            api->xPhraseNext(page, &at, &column, &offset);
        all += count * (often + 1) / (count + often * length);
    }
    ::sqlite3_result_double(result, all);
}

fts5_api* extensionOf(const Sqlite& database) {
    fts5_api* api = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (::sqlite3_prepare_v2(database.handle(), "SELECT fts5(?1)", -1, &statement, nullptr) ==
        SQLITE_OK) {
        ::sqlite3_bind_pointer(statement, 1, &api, "fts5_api_ptr", nullptr);
        ::sqlite3_step(statement);
    }
    ::sqlite3_finalize(statement);
    return api;
}

bool isBetterPage(const SegmentReader::Page& one, const SegmentReader::Page& other) {
    return one.score != other.score ? one.score > other.score : one.row < other.row;
}

} // namespace

struct SegmentReader::Open {
    explicit Open(const QString& file) : database(file, Sqlite::Mode::read) {
        // The file is read where the system keeps it.
        database.run("PRAGMA mmap_size=1099511627776; PRAGMA temp_store=MEMORY;"
                     "PRAGMA cache_size=-256; PRAGMA trusted_schema=OFF;");
        fts5_api* api = extensionOf(database);
        const int code =
            api ? api->xCreateFunction(api, "score", &ranking, score, nullptr) : SQLITE_ERROR;
        if (code != SQLITE_OK)
            database.fail(code);
    }

    Sqlite database;
    Ranking ranking;
    std::vector<Rows> books;
    std::unique_ptr<SqliteStatement> match;
    std::unique_ptr<SqliteStatement> bookOfRow;
    std::unique_ptr<SqliteStatement> rowsOfBook;
};

SegmentReader::SegmentReader(const QString& file) : iFile(file) {}

bool SegmentReader::refresh() {
    const FileState now = FileState::of(iFile);
    if (now == iState)
        return iOpen != nullptr;
    iState = now;
    iOpen.reset();
    if (!now.isThere)
        return false;
    try {
        auto open = std::make_shared<Open>(iFile);
        const Sqlite& database = open->database;
        SqliteStatement version(database, "PRAGMA user_version");
        if (!version.step() || version.number(0) != SearchSegments::version)
            return false;
        SqliteStatement books(database, "SELECT first, pages FROM books ORDER BY first");
        while (books.step())
            open->books.push_back({books.number(0), books.number(0) + books.number(1) - 1});
        open->match = std::make_unique<SqliteStatement>(
            database, "SELECT rowid, score(pages) FROM pages WHERE pages MATCH ?1"
                      " AND rowid BETWEEN ?2 AND ?3 ORDER BY rowid");
        open->bookOfRow = std::make_unique<SqliteStatement>(
            database, "SELECT id, first, pages FROM books WHERE first <= ? ORDER BY first DESC"
                      " LIMIT 1");
        open->rowsOfBook = std::make_unique<SqliteStatement>(
            database, "SELECT first, pages FROM books WHERE id = ?");
        iOpen = std::move(open);
    } catch (const PlatformException& failure) {
        readerLog.warn(failure.reason());
    }
    return iOpen != nullptr;
}

SegmentReader::Rows SegmentReader::rowsOf(const QString& book) {
    if (book.isNull())
        return {0, std::numeric_limits<qint64>::max()};
    SqliteStatement& find = *iOpen->rowsOfBook;
    find.bind(0, book.toUtf8());
    if (!find.step())
        return {0, -1};
    const Rows rows{find.number(0), find.number(0) + find.number(1) - 1};
    find.reset();
    return rows;
}

SegmentReader::Found SegmentReader::find(const QByteArray& expression, const QString& book,
                                         const Limits& limits,
                                         std::chrono::steady_clock::time_point deadline) {
    Found found;
    const Rows rows = rowsOf(book);
    if (rows.last < rows.first)
        return found;
    const SqliteDeadline limit(iOpen->database, deadline);
    iOpen->ranking.left = limits.mostRanked;
    SqliteStatement& match = *iOpen->match;
    match.bind(0, expression);
    match.bind(1, rows.first);
    match.bind(2, rows.last);
    auto alive = iOpen->books.begin();
    while (match.step(&found.isMore)) {
        const qint64 row = match.number(0);
        while (alive != iOpen->books.end() && alive->last < row)
            ++alive;
        if (alive == iOpen->books.end() || row < alive->first)
            continue; // of a book that is gone
        if (found.count == limits.mostCounted) {
            found.isMore = true;
            match.reset();
            break;
        }
        ++found.count;
        if (found.count > limits.mostRanked)
            continue;
        found.pages.push_back({row, match.real(1)});
        std::push_heap(found.pages.begin(), found.pages.end(), isBetterPage);
        if (found.pages.size() <= limits.mostPages)
            continue;
        std::pop_heap(found.pages.begin(), found.pages.end(), isBetterPage); // the worst one
        found.pages.pop_back();
    }
    return found;
}

SegmentReader::Place SegmentReader::placeOf(qint64 row) {
    SqliteStatement& find = *iOpen->bookOfRow;
    find.bind(0, row);
    if (!find.step())
        return {};
    const Place place{QString::fromUtf8(find.text(0)), int(row - find.number(1)) + 1};
    find.reset();
    return place;
}
