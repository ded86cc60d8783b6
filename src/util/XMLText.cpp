#include "util/XMLText.h"

#include <QStringDecoder>

namespace {

class TextCollector : public pugi::xml_tree_walker {
public:
    bool for_each(pugi::xml_node& node) override {
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            iText += node.value();
        return true;
    }
    const std::string& text() const { return iText; }

private:
    std::string iText;
};

bool isLegal(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x20)
        return code == u'\t' || code == u'\n' || code == u'\r';
    return !character.isSurrogate() && code < 0xFFFE;
}

} // namespace

QString XMLText::textOf(const pugi::xml_node& element) {
    TextCollector collector;
    pugi::xml_node start = element;
    start.traverse(collector);
    // A text may begin with U+FEFF, which must not be dropped as a byte order mark.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decode(QByteArrayView(collector.text()));
    return text.isNull() ? QStringLiteral("") : text;
}

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
