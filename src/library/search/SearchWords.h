#pragma once

#include <QString>
#include <vector>

// Texts as they are compared in searches: words without case, marks above and below letters,
// ligatures and hyphens at line ends. Where words are not separated (Chinese, Japanese, Korean,
// Thai), each letter is a word, so that any part of such a text is found as a phrase.
//
// The player of web books folds letters in the same way (player/web/foldtext.js): what is found in
// a library is marked in the book.
namespace SearchWords {

// No word of a query.
inline const QString gap = QStringLiteral("\uE000");

struct Word {
    QString text; // letters and digits only
    // Where it is in the source: index of the first character and of the one behind the last.
    qsizetype from;
    qsizetype to;
};

struct Words {
    std::vector<Word> all;
    // The parts of those that a hyphen divides at a line's end, which may belong to the word:
    // "har-bour" is one, "well-known" are two. A gap follows those of each word.
    std::vector<Word> parts;
};

Words in(const QString& text);

// The words joined by blanks.
QString joined(const std::vector<Word>& words);

// Whether each letter of the word's script is a word.
bool isLetterOfMany(const QString& word);

} // namespace SearchWords
