#include "pdf/InlineImages.h"

#include <string_view>

namespace {

bool isIn(std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
}

constexpr std::string_view spaces("\0\t\n\f\r ", 6);
constexpr std::string_view delimiters("()<>[]{}/%");

// Splits a content stream into words: names with their slash, numbers, operators. Strings and
// comments are words that begin with "(" and "%", of dictionaries and arrays each bracket is one.
class Words {
public:
    explicit Words(const QByteArray& content) : iContent(content) {}

    // Empty at the end.
    QByteArray next() {
        while (iEnd < iContent.size() && isIn(spaces, iContent[iEnd]))
            ++iEnd;
        iBegin = iEnd;
        if (iEnd == iContent.size())
            return {};
        const char first = iContent[iEnd++];
        if (first == '(')
            skipString();
        else if (first == '%')
            skipTo("\r\n");
        else if (first == '/' || !isIn(delimiters, first))
            skipLetters();
        return iContent.mid(iBegin, iEnd - iBegin);
    }

    // After "ID": to the end of "EI".
    void skipPixels() {
        do {
            iEnd = iContent.indexOf("EI", iEnd + 1);
            if (iEnd < 0)
                iEnd = iContent.size();
        } while (iEnd < iContent.size() && !isWord(iEnd));
        iEnd = std::min(iEnd + 2, iContent.size());
    }

    qsizetype begin() const { return iBegin; }
    qsizetype end() const { return iEnd; }

private:
    bool isWord(qsizetype at) const {
        const bool isOpen = at + 2 < iContent.size();
        return isIn(spaces, iContent[at - 1]) &&
               (!isOpen || isIn(spaces, iContent[at + 2]) || isIn(delimiters, iContent[at + 2]));
    }

    void skipString() {
        for (int depth = 1; depth > 0 && iEnd < iContent.size(); ++iEnd) {
            if (iContent[iEnd] == '\\')
                ++iEnd;
            else if (iContent[iEnd] == '(')
                ++depth;
            else if (iContent[iEnd] == ')')
                --depth;
        }
        iEnd = std::min(iEnd, iContent.size());
    }
    void skipTo(std::string_view ends) {
        while (iEnd < iContent.size() && !isIn(ends, iContent[iEnd]))
            ++iEnd;
    }
    void skipLetters() {
        while (iEnd < iContent.size() && !isIn(spaces, iContent[iEnd]) &&
               !isIn(delimiters, iContent[iEnd]))
            ++iEnd;
    }

    const QByteArray& iContent;
    qsizetype iBegin = 0;
    qsizetype iEnd = 0;
};

// Reads an image from behind its "BI".
bool isEmptyImage(Words& words) {
    int width = 0;
    int height = 0;
    QByteArray key;
    for (QByteArray word = words.next(); !word.isEmpty() && word != "ID"; word = words.next()) {
        if (key == "/W" || key == "/Width")
            width = word.toInt();
        else if (key == "/H" || key == "/Height")
            height = word.toInt();
        key = word;
    }
    words.skipPixels();
    return width <= 0 || height <= 0;
}

} // namespace

QByteArray InlineImages::withoutEmpty(const QByteArray& content) {
    QByteArray kept;
    qsizetype keptTo = 0;
    Words words(content);
    for (QByteArray word = words.next(); !word.isEmpty(); word = words.next()) {
        if (word != "BI")
            continue;
        const qsizetype begin = words.begin();
        if (isEmptyImage(words)) {
            kept += content.mid(keptTo, begin - keptTo);
            keptTo = words.end();
        }
    }
    return keptTo == 0 ? QByteArray() : kept + content.mid(keptTo);
}
