#pragma once

#include "library/search/SearchWords.h"

#include <QByteArray>
#include <QString>
#include <vector>

// What a reader searches for: words that must all be on a page. Words in quotation marks must
// follow each other; one that ends in an asterisk stands for all that begin so.
class SearchQuery {
public:
    // Longer ones are empty.
    static constexpr qsizetype longest = 200;

    // Any text will do: what is no word is ignored.
    explicit SearchQuery(const QString& typed);

    bool isEmpty() const { return iTerms.empty(); }
    // For the index, in the language of FTS5.
    QByteArray expression() const;
    // What marks the same words in a book, as the fragment "search" of its address.
    QString forPlayer() const;

    // A part of a text, from the first character to that behind the last.
    struct Hit {
        qsizetype from;
        qsizetype to;
    };
    // In order, without overlaps; none unless all terms are found.
    std::vector<Hit> hitsIn(const QString& text) const;

private:
    struct Term {
        QString typed;
        std::vector<QString> words;
        bool isQuoted = false;
        QString joined; // as one word, where the reader typed a hyphen; otherwise null
        bool isPrefix = false;
    };

    void add(const QString& typed, bool isQuoted);
    static void addHits(const Term& term, const std::vector<SearchWords::Word>& words,
                        std::vector<Hit>& hits);

    std::vector<Term> iTerms;
};
