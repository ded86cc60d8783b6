#include "output/XMLText.h"

namespace {

bool isLegal(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x20)
        return code == u'\t' || code == u'\n' || code == u'\r';
    return !character.isSurrogate() && code < 0xFFFE;
}

} // namespace

QString XMLText::legal(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            result += text[i++];
        if (isPair || isLegal(text[i]))
            result += text[i];
    }
    return result;
}
