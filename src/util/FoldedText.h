#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// Texts as the search compares them: without case, marks above and below letters, hyphens and line
// ends, exactly as the player does it (player/web/foldtext.js), since scripts look up what this has
// folded. player/test/support/folding.json has the cases that both must pass.
class TextFolder {
public:
    QString folded(const QString& text);

    // What an index has of a text: words of letters and digits, at most longestWord characters of
    // each, in scripts without spaces between words (Chinese, Japanese, Thai, ...) pairs of
    // neighbours and the last letter of each run. Words with hyphens count as one and as their
    // parts. Without repetitions.
    QStringList words(const QString& text);

    static constexpr qsizetype longestWord = 32;

    // What compatibility forms and lower case leave different but readers take for the same: "ss"
    // for ß. Null for all other characters.
    static QString sameAs(char32_t code);

private:
    enum class Kind { none, space, lineEnd, hyphen, softHyphen, letter, cjkLetter, other };
    struct Character {
        QString piece;
        Kind kind;
    };

    const Character& character(char32_t code);
    static Character foldedCharacter(char32_t code);
    static Kind kindOf(char32_t code, const QString& piece);
    static bool isLetter(Kind kind) { return kind == Kind::letter || kind == Kind::cjkLetter; }

    QHash<char32_t, Character> iKnown;
};
