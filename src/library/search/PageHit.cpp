#include "library/search/PageHit.h"

#include "library/BookResult.h"
#include "library/search/BookTexts.h"
#include "output/BookLayout.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace {

// Characters before and behind the first hit.
constexpr qsizetype before = 60;
constexpr qsizetype behind = 140;

// The beginning of a word from there on, but not beyond the limit.
qsizetype wordStart(const QString& text, qsizetype at, qsizetype limit) {
    if (at <= 0)
        return 0;
    for (qsizetype i = at; i < limit; ++i) {
        if (text[i].isSpace())
            return i + 1;
    }
    return text[at].isLowSurrogate() ? at + 1 : at;
}

qsizetype wordEnd(const QString& text, qsizetype at, qsizetype limit) {
    if (at >= text.size())
        return text.size();
    for (qsizetype i = at; i > limit; --i) {
        if (text[i].isSpace())
            return i;
    }
    return text[at].isLowSurrogate() ? at + 1 : at;
}

// On one line. Lines of Chinese and Japanese run on without a blank.
QString plain(const QString& text) {
    static const QRegularExpression runsOn(
        QStringLiteral("(?<=[\\x{3001}-\\x{30ff}\\x{3400}-\\x{9fff}])\\n"
                       "(?=[\\x{3001}-\\x{30ff}\\x{3400}-\\x{9fff}])"));
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return QString(text).remove(runsOn).replace(blanks, QStringLiteral(" "));
}

} // namespace

QStringList PageHit::snippetOf(const QString& text, const std::vector<SearchQuery::Hit>& hits) {
    if (hits.empty())
        return {};
    const auto [first, last] = hits.front();
    const qsizetype begin = wordStart(text, first - before, first);
    const qsizetype end = wordEnd(text, last + behind, last);
    QStringList pieces;
    qsizetype at = begin;
    for (const auto& hit : hits) {
        if (hit.to > end)
            break;
        pieces << plain(text.mid(at, hit.from - at))
               << plain(text.mid(hit.from, hit.to - hit.from));
        at = hit.to;
    }
    pieces << plain(text.mid(at, end - at));
    if (begin > 0)
        pieces.front().prepend(u'\u2026');
    if (end < text.size())
        pieces.back().append(u'\u2026');
    return pieces;
}

QString PageHit::addressOf(const QString& book, int position) {
    return LibraryLayout::bookPath(book) + u'/' + BookLayout::defaultPage +
           QStringLiteral("#page=%1").arg(position);
}

std::optional<PageHit> PageHit::make(const LibraryLayout& library, const SearchQuery& query,
                                     const LibrarySearch::Hit& hit) {
    const auto result = BookResult::read(library.result(hit.book));
    const BookTexts texts(library.book(hit.book));
    if (!result || !result->made || !texts.isThere())
        return {};
    const BookFacts facts = result->allFacts();
    PageHit page{hit.book,
                 facts.title,
                 facts.author,
                 hit.position,
                 texts.label(hit.position),
                 {},
                 addressOf(hit.book, hit.position)};
    if (const auto words = texts.page(hit.position))
        page.snippet = snippetOf(words->text(), query.hitsIn(words->text()));
    page.address += QStringLiteral("&search=") +
                    QString::fromLatin1(QUrl::toPercentEncoding(query.forPlayer()));
    return page;
}

QJsonObject PageHit::asJson() const {
    QJsonObject object{{QStringLiteral("book"), book},
                       {QStringLiteral("title"), title},
                       {QStringLiteral("position"), position},
                       {QStringLiteral("snippet"), QJsonArray::fromStringList(snippet)},
                       {QStringLiteral("address"), address}};
    if (!author.isEmpty())
        object[QStringLiteral("author")] = author;
    if (!label.isEmpty())
        object[QStringLiteral("label")] = label;
    return object;
}
