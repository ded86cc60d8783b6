#pragma once

#include "webbook/reading/ReadingLine.h"

#include <unordered_set>

// Whether a letter is of Chinese or Japanese, which have no blanks between words.
bool isUnspaced(QChar letter);

// Joins lines to a text. Whether a hyphen at the end of a line belongs to its word is known from
// the words in the rest of the book, not from a dictionary.
class LineJoin {
public:
    // Takes up the words of a line of the book.
    void learn(const ReadingLine& line);

    // Adds a line to a block that is not empty, as its kind requires.
    void append(ReadingBlock& block, const ReadingLine& line) const;

private:
    void learn(const QString& text);
    bool isKnown(const QString& word) const;
    bool belongsHyphen(const QString& before, const QString& after) const;

    std::unordered_set<std::size_t> iWords; // digests, folded to lower case
};
