#include "library/search/SearchWords.h"

#include "util/FoldedText.h"

#include <QChar>
#include <optional>

namespace {

using SearchWords::Word;
using SearchWords::Words;

// Longer ones are no words, but would be kept whole in the index.
constexpr qsizetype longestWord = 80;

enum class Kind : char {
    space,
    lineEnd,
    hyphen,
    softHyphen,
    mark,
    letter,
    digit,
    ideograph,
    other
};

struct Folded {
    QString text; // null when not known yet
    Kind kind = Kind::other;
};

bool isOfUnseparatedScript(char32_t code) {
    switch (QChar::script(code)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
    case QChar::Script_Yi:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return true;
    default:
        // Iteration marks and the long vowel of Japanese are common to several scripts.
        return code == 0x3005 || code == 0x3006 || code == 0x30fc || code == 0xff70;
    }
}

Kind kindOf(char32_t code, const QString& folded) {
    if (code == U'\n')
        return Kind::lineEnd;
    if (QChar::isSpace(code))
        return Kind::space;
    if (code == 0xad)
        return Kind::softHyphen;
    if (code == U'-' || code == 0x2010 || code == 0x2011)
        return Kind::hyphen;
    if (QChar::isMark(code) || QChar::category(code) == QChar::Other_Format || code == 0x640)
        return Kind::mark;
    if (folded.isEmpty())
        return QChar::isLetter(code) ? Kind::mark : Kind::other;
    if (isOfUnseparatedScript(code))
        return Kind::ideograph;
    return QChar::isLetter(code) ? Kind::letter : Kind::digit;
}

Folded fold(char32_t code) {
    const QString plain =
        QString::fromUcs4(&code, 1).normalized(QString::NormalizationForm_KD).toLower();
    QString text = QStringLiteral("");
    for (const char32_t letter : plain.toUcs4()) {
        if (!QChar::isLetterOrNumber(letter))
            continue;
        const QString same = TextFolder::sameAs(letter);
        text += same.isNull() ? QString::fromUcs4(&letter, 1) : same;
    }
    return {text, kindOf(code, text)};
}

const Folded& folded(char32_t code) {
    constexpr std::size_t basic = 0x10000;
    thread_local std::vector<Folded> known(basic);
    thread_local Folded other;
    if (code >= basic)
        return other = fold(code);
    Folded& one = known[code];
    if (one.text.isNull())
        one = fold(code);
    return one;
}

class Reader {
public:
    explicit Reader(const QString& text) : iText(text) {}

    Words read() {
        while (iAt < iText.size()) {
            const QChar unit = iText[iAt];
            const bool isPair =
                unit.isHighSurrogate() && iAt + 1 < iText.size() && iText[iAt + 1].isLowSurrogate();
            iNext = iAt + (isPair ? 2 : 1);
            take(folded(isPair ? QChar::surrogateToUcs4(unit, iText[iAt + 1]) : unit.unicode()));
            iAt = iNext;
        }
        end();
        return std::move(iWords);
    }

private:
    void take(const Folded& letter) {
        switch (letter.kind) {
        case Kind::letter:
        case Kind::digit:
            return add(letter);
        case Kind::ideograph:
            end();
            iWords.all.push_back({letter.text, iAt, iNext});
            return;
        case Kind::mark:
            extend();
            return;
        case Kind::softHyphen:
        case Kind::hyphen:
            if (iWord.isEmpty() || iHyphen || iLast != Kind::letter)
                end();
            else
                iHyphen = letter.kind;
            return;
        case Kind::lineEnd:
            if (!iHyphen || iBroken)
                end();
            else
                iBroken = true;
            return;
        case Kind::space:
            // A line may end in blanks.
            if (iHyphen != Kind::hyphen)
                end();
            return;
        case Kind::other:
            end();
        }
    }

    void add(const Folded& letter) {
        const bool isDivided = iBroken || iHyphen == Kind::softHyphen;
        if (iHyphen && isDivided && letter.kind == Kind::letter)
            divide();
        else if (iHyphen)
            end();
        if (iWord.isEmpty())
            iFrom = iPart = iAt;
        iWord += letter.text;
        iTo = iNext;
        iLast = letter.kind;
    }

    // A mark belongs to the letter before it.
    void extend() {
        if (!iWord.isEmpty() && !iHyphen)
            iTo = iNext;
        else if (iWord.isEmpty() && !iWords.all.empty() && iWords.all.back().to == iAt)
            iWords.all.back().to = iNext;
    }

    // The word goes on in the next line, or behind a hyphen that is not seen.
    void divide() {
        if (iBroken && *iHyphen == Kind::hyphen) {
            addPart();
            iPart = iAt;
            iPartStart = iWord.size();
        }
        iHyphen.reset();
        iBroken = false;
    }

    void addPart() {
        iWords.parts.push_back({iWord.mid(iPartStart).left(longestWord), iPart, iTo});
    }

    void end() {
        if (!iWord.isEmpty()) {
            if (iPartStart > 0) {
                addPart();
                iWords.parts.push_back({SearchWords::gap, iTo, iTo});
            }
            iWords.all.push_back({iWord.left(longestWord), iFrom, iTo});
        }
        iWord.clear();
        iHyphen.reset();
        iBroken = false;
        iPartStart = 0;
    }

    const QString& iText;
    qsizetype iAt = 0;
    qsizetype iNext = 0; // behind the character at iAt
    Words iWords;
    QString iWord; // being read
    qsizetype iFrom = 0;
    qsizetype iTo = 0;
    qsizetype iPart = 0;         // where its last part begins in the text
    qsizetype iPartStart = 0;    // and in the word
    Kind iLast = Kind::other;    // its last letter
    std::optional<Kind> iHyphen; // what has been read since its last letter
    bool iBroken = false;        // whether a line's end follows
};

} // namespace

Words SearchWords::in(const QString& text) {
    return Reader(text).read();
}

QString SearchWords::joined(const std::vector<Word>& words) {
    QString text;
    for (const Word& word : words) {
        if (!text.isEmpty())
            text += u' ';
        text += word.text;
    }
    return text;
}

bool SearchWords::isLetterOfMany(const QString& word) {
    const auto letters = word.toUcs4();
    return !letters.isEmpty() && isOfUnseparatedScript(letters.front());
}
