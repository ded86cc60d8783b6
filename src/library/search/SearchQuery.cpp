#include "library/search/SearchQuery.h"

#include <QStringList>
#include <algorithm>

namespace {

using SearchWords::Word;

// Shorter beginnings are those of half the words there are.
constexpr qsizetype shortestPrefix = 2;

bool isQuotationMark(QChar letter) {
    return QStringView(u"\"\u201c\u201d\u201e\u00ab\u00bb").contains(letter);
}

// A word of FTS5. There is nothing to escape: words have letters and digits only.
QByteArray quoted(const QString& words, bool isPrefix) {
    return '"' + words.toUtf8() + (isPrefix ? "\" *" : "\"");
}

bool matches(const QString& word, const QString& wanted, bool isPrefix) {
    return isPrefix ? word.startsWith(wanted) : word == wanted;
}

} // namespace

SearchQuery::SearchQuery(const QString& typed) {
    if (typed.size() > longest)
        return;
    QString term;
    bool isQuoted = false;
    for (const QChar letter : typed) {
        const bool isMark = isQuotationMark(letter);
        if (isMark || (letter.isSpace() && !isQuoted)) {
            add(term, isQuoted);
            term.clear();
            isQuoted = isMark && !isQuoted;
        } else {
            term += letter;
        }
    }
    add(term, isQuoted);
}

void SearchQuery::add(const QString& typed, bool isQuoted) {
    const auto words = SearchWords::in(typed).all;
    if (words.empty())
        return;
    Term term;
    for (const Word& word : words)
        term.words.push_back(word.text);
    const QString& last = term.words.back();
    term.isPrefix = !isQuoted && typed.endsWith(u'*') && last.size() >= shortestPrefix &&
                    !SearchWords::isLetterOfMany(last);
    term.typed = typed.mid(words.front().from, words.back().to - words.front().from).simplified();
    term.isQuoted = isQuoted;
    if (!isQuoted && words.size() > 1 && term.typed.contains(u'-'))
        term.joined = SearchWords::joined(words).remove(u' ');
    iTerms.push_back(std::move(term));
}

QByteArray SearchQuery::expression() const {
    QByteArray all;
    for (const Term& term : iTerms) {
        QByteArray one =
            quoted(QStringList(term.words.begin(), term.words.end()).join(u' '), term.isPrefix);
        if (!term.joined.isNull())
            one = '(' + one + " OR " + quoted(term.joined, term.isPrefix) + ')';
        all += (all.isEmpty() ? "" : " AND ") + one;
    }
    return all;
}

QString SearchQuery::forPlayer() const {
    QStringList texts;
    for (const Term& term : iTerms)
        texts << term.typed;
    // The player knows one phrase, or words.
    const bool isPhrase = iTerms.size() == 1 && iTerms.front().isQuoted;
    return isPhrase ? u'"' + texts.front() + u'"' : texts.join(u' ');
}

std::vector<SearchQuery::Hit> SearchQuery::hitsIn(const QString& text) const {
    const SearchWords::Words words = SearchWords::in(text);
    std::vector<Hit> hits;
    for (const Term& term : iTerms) {
        const auto before = hits.size();
        addHits(term, words.all, hits);
        addHits(term, words.parts, hits);
        if (hits.size() == before)
            return {};
    }
    std::sort(hits.begin(), hits.end(), [](const Hit& one, const Hit& other) {
        return one.from != other.from ? one.from < other.from : one.to > other.to;
    });
    qsizetype end = 0;
    std::erase_if(hits, [&end](const Hit& hit) {
        const bool overlaps = hit.from < end;
        end = std::max(end, hit.to);
        return overlaps;
    });
    return hits;
}

void SearchQuery::addHits(const Term& term, const std::vector<Word>& words,
                          std::vector<Hit>& hits) {
    const std::size_t count = term.words.size();
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (!term.joined.isNull() && matches(words[at].text, term.joined, term.isPrefix))
            hits.push_back({words[at].from, words[at].to});
        std::size_t equal = 0;
        while (
            equal < count && at + equal < words.size() &&
            matches(words[at + equal].text, term.words[equal], term.isPrefix && equal + 1 == count))
            ++equal;
        if (equal == count)
            hits.push_back({words[at].from, words[at + count - 1].to});
    }
}
