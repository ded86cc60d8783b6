#include "library/catalogue/XMLDocument.h"

#include "util/XMLText.h"

XMLDocument::XMLDocument(QByteArray* bytes) : iBytes(bytes), iWriter(&iText) {
    begin();
}

XMLDocument::XMLDocument(QIODevice* device) : iWriter(device) {
    begin();
}

void XMLDocument::begin() {
    iWriter.setAutoFormatting(true);
    iWriter.setAutoFormattingIndent(0);
    iWriter.writeStartDocument();
}

void XMLDocument::add(const Attributes& attributes) {
    for (const auto& [name, value] : attributes)
        iWriter.writeAttribute(QLatin1String(name), XMLText::legal(value));
}

void XMLDocument::start(const char* element, const Attributes& attributes) {
    iWriter.writeStartElement(QLatin1String(element));
    add(attributes);
}

void XMLDocument::end() {
    iWriter.writeEndElement();
}

void XMLDocument::text(const char* element, const QString& text, const Attributes& attributes) {
    const QString legal = XMLText::legal(text);
    if (legal.isEmpty())
        return;
    start(element, attributes);
    iWriter.writeCharacters(legal);
    end();
}

void XMLDocument::empty(const char* element, const Attributes& attributes) {
    iWriter.writeEmptyElement(QLatin1String(element));
    add(attributes);
}

void XMLDocument::finish() {
    iWriter.writeEndDocument();
    if (iBytes)
        *iBytes = iText.toUtf8();
}
