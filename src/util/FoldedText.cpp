#include "util/FoldedText.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <utility>

namespace {

const QHash<char32_t, QString>& same() {
    static const QHash<char32_t, QString> all = [] {
        QHash<char32_t, QString> pieces{
            {U'ß', QStringLiteral("ss")}, {U'ø', QStringLiteral("o")}, {U'æ', QStringLiteral("ae")},
            {U'œ', QStringLiteral("oe")}, {U'ł', QStringLiteral("l")}, {U'đ', QStringLiteral("d")},
            {U'ı', QStringLiteral("i")},  {U'ς', QStringLiteral("σ")}, {U'ٱ', QStringLiteral("ا")},
            {U'ى', QStringLiteral("ي")},  {U'ی', QStringLiteral("ي")}, {U'ک', QStringLiteral("ك")},
            {U'ة', QStringLiteral("ه")},  {U'ـ', QStringLiteral("")}};
        for (const char32_t quote : U"\u2018\u2019\u201a\u201b\u2039\u203a\u2032")
            pieces[quote] = QStringLiteral("'");
        for (const char32_t quote : U"\u201c\u201d\u201e\u201f\u00ab\u00bb\u2033")
            pieces[quote] = QStringLiteral("\"");
        for (const char32_t hyphen : U"\u2010\u2011\u2012\u2013\u2014\u2015\u2212")
            pieces[hyphen] = QStringLiteral("-");
        pieces.remove(0); // the end of each list
        return pieces;
    }();
    return all;
}

// The white space of regular expressions in scripts.
bool isSpace(char32_t code) {
    return (code >= 9 && code <= 13) || code == 0xFEFF || code == 0x2028 || code == 0x2029 ||
           QChar::category(code) == QChar::Separator_Space;
}

bool isCJK(char32_t code) {
    switch (QChar::script(code)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
        return true;
    default:
        return (code >= 0x3001 && code <= 0x303F) || code == 0x30FC ||
               (code >= 0xFF00 && code <= 0xFFEF);
    }
}

// Of a script without spaces between words.
bool isUnspaced(char32_t code) {
    switch (QChar::script(code)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return true;
    default:
        return code == 0x30FC;
    }
}

bool isHyphen(QChar character) {
    const char16_t code = character.unicode();
    return code == u'-' || (code >= 0x2010 && code <= 0x2015);
}

using CodePoints = QVarLengthArray<char32_t, 256>;

CodePoints codePointsOf(const QString& text) {
    CodePoints codes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        codes << (isPair ? QChar::surrogateToUcs4(text[i], text[i + 1])
                         : char32_t(text[i].unicode()));
        i += isPair;
    }
    return codes;
}

void append(QString& text, char32_t code) {
    text += QChar::fromUcs4(code);
}

void addWords(QStringList& words, const QString& folded) {
    const CodePoints codes = codePointsOf(folded);
    qsizetype at = 0;
    while (at < codes.size()) {
        if (!QChar::isLetterOrNumber(codes[at])) {
            ++at;
            continue;
        }
        const bool isPairs = isUnspaced(codes[at]);
        const qsizetype start = at;
        while (at < codes.size() && QChar::isLetterOrNumber(codes[at]) &&
               isUnspaced(codes[at]) == isPairs)
            ++at;
        if (!isPairs) {
            QString word;
            for (qsizetype i = start; i < std::min(at, start + TextFolder::longestWord); ++i)
                append(word, codes[i]);
            words << word;
        }
        for (qsizetype i = start; isPairs && i < at; ++i) {
            QString pair;
            append(pair, codes[i]);
            if (i + 1 < at)
                append(pair, codes[i + 1]);
            words << pair;
        }
    }
}

} // namespace

TextFolder::Character TextFolder::foldedCharacter(char32_t code) {
    const QString source = QString::fromUcs4(&code, 1);
    QString piece;
    for (const char32_t one :
         codePointsOf(source.normalized(QString::NormalizationForm_KD).toLower())) {
        const bool isDropped =
            QChar::isMark(one) || QChar::category(one) == QChar::Other_Format || isSpace(one);
        if (const QString same = sameAs(one); !same.isNull())
            piece += same;
        else if (!isDropped)
            append(piece, one);
    }
    return {piece, kindOf(code, piece)};
}

QString TextFolder::sameAs(char32_t code) {
    return same().value(code);
}

TextFolder::Kind TextFolder::kindOf(char32_t code, const QString& piece) {
    if (code == U'\n')
        return Kind::lineEnd;
    if (isSpace(code))
        return Kind::space;
    if (code == 0xAD)
        return Kind::softHyphen;
    if (piece == u"-")
        return Kind::hyphen;
    if (isCJK(code))
        return Kind::cjkLetter;
    return QChar::isLetter(code) ? Kind::letter : Kind::other;
}

const TextFolder::Character& TextFolder::character(char32_t code) {
    auto known = iKnown.find(code);
    if (known == iKnown.end())
        known = iKnown.insert(code, foldedCharacter(code));
    return *known;
}

QString TextFolder::folded(const QString& text) {
    QString result;
    result.reserve(text.size());
    Kind last = Kind::other;
    // What was passed since the last character and counts only by what follows.
    Kind gap = Kind::none;
    Kind hyphen = Kind::none;
    for (const char32_t code : codePointsOf(text)) {
        const auto& [piece, kind] = character(code);
        if (kind == Kind::space || kind == Kind::lineEnd) {
            gap = std::max(gap, kind);
        } else if (kind == Kind::softHyphen || (kind == Kind::hyphen && gap == Kind::none &&
                                                hyphen == Kind::none && isLetter(last))) {
            if (gap == Kind::none && hyphen == Kind::none)
                hyphen = kind;
        } else if (!piece.isEmpty()) {
            const bool joins =
                hyphen != Kind::none && gap != Kind::space && isLetter(kind) && isLetter(last);
            if (hyphen == Kind::hyphen && !joins)
                result += u'-';
            const bool runsOn =
                gap == Kind::lineEnd && last == Kind::cjkLetter && kind == Kind::cjkLetter;
            if (gap != Kind::none && !joins && !runsOn && !result.isEmpty())
                result += u' ';
            result += piece;
            last = kind;
            gap = Kind::none;
            hyphen = Kind::none;
        }
    }
    return result;
}

QStringList TextFolder::words(const QString& text) {
    QStringList found;
    addWords(found, folded(text));
    if (std::any_of(text.begin(), text.end(), isHyphen)) {
        QString parts = text;
        std::replace_if(parts.begin(), parts.end(), isHyphen, u' ');
        addWords(found, folded(parts));
    }
    found.removeDuplicates();
    return found;
}
