#include "Fuzz.h"
#include "library/search/SearchQuery.h"
#include "library/search/Sqlite.h"

namespace {

Sqlite emptyIndex() {
    Sqlite index(QStringLiteral(":memory:"), Sqlite::Mode::write);
    index.run("CREATE VIRTUAL TABLE pages USING fts5(words, parts, content='', tokenize='ascii')");
    return index;
}

} // namespace

// What a reader searches for in all books, and a text after a line feed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Sqlite index = emptyIndex();
    const QString input = QString::fromUtf8(Fuzz::Input(data, size).rest());
    const qsizetype end = std::max<qsizetype>(input.indexOf(u'\n'), 0);
    const QString text = input.mid(end);
    const SearchQuery query(input.left(end));
    Fuzz::require(query.isEmpty() == query.expression().isEmpty(), "words make an expression");
    if (!query.isEmpty()) {
        SqliteStatement find(index, "SELECT rowid FROM pages WHERE pages MATCH ?");
        find.bind(0, query.expression());
        Fuzz::require(!find.step(), "an empty index has no pages"); // throws for a syntax error
    }
    qsizetype before = 0;
    for (const auto& [from, to] : query.hitsIn(text)) {
        Fuzz::require(before <= from && from < to && to <= text.size(),
                      "hits lie in the text, in order");
        before = to;
    }
    Fuzz::require(query.forPlayer().size() <= 4 * SearchQuery::longest, "addresses stay short");
    return 0;
}
