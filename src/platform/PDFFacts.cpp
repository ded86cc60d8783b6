#include "platform/PDFFacts.h"

#include <QDataStream>
#include <QIODevice>

namespace {

// Far beyond what a document is read to.
constexpr int maxDepth = 100;

void write(QDataStream& stream, const PDFOutlineNode& node);
void read(QDataStream& stream, PDFOutlineNode& node, int depth);
void write(QDataStream& stream, const PDFAnnotation& annotation);
void read(QDataStream& stream, PDFAnnotation& annotation, int depth);

void write(QDataStream& stream, int number) {
    stream << qint32(number);
}

void read(QDataStream& stream, int& number, int /*depth*/) {
    qint32 value = 0;
    stream >> value;
    number = value;
}

void write(QDataStream& stream, const QString& text) {
    stream << text;
}

void read(QDataStream& stream, QString& text, int /*depth*/) {
    stream >> text;
}

template <class Item>
void write(QDataStream& stream, const std::vector<Item>& items) {
    stream << quint32(items.size());
    for (const Item& item : items)
        write(stream, item);
}

// A count that lies ends at the end of the bytes.
template <class Item>
void read(QDataStream& stream, std::vector<Item>& items, int depth) {
    quint32 count = 0;
    stream >> count;
    if (depth > maxDepth)
        stream.setStatus(QDataStream::ReadCorruptData);
    while (count-- > 0 && stream.status() == QDataStream::Ok) {
        Item item{};
        read(stream, item, depth + 1);
        items.push_back(std::move(item));
    }
}

void write(QDataStream& stream, const PDFPageBoxes& boxes) {
    stream << boxes.media << boxes.crop << qint32(boxes.rotation) << boxes.display
           << boxes.displayError;
}

void read(QDataStream& stream, PDFPageBoxes& boxes, int /*depth*/) {
    qint32 rotation = 0;
    stream >> boxes.media >> boxes.crop >> rotation >> boxes.display >> boxes.displayError;
    boxes.rotation = rotation;
}

void write(QDataStream& stream, const PDFAnnotation& annotation) {
    stream << annotation.type << annotation.bounds << annotation.url
           << qint32(annotation.destinationPage.value_or(-1));
}

void read(QDataStream& stream, PDFAnnotation& annotation, int /*depth*/) {
    qint32 page = -1;
    stream >> annotation.type >> annotation.bounds >> annotation.url >> page;
    if (page >= 0)
        annotation.destinationPage = page;
}

void write(QDataStream& stream, const PDFOutlineNode& node) {
    stream << node.label << qint32(node.destinationPage);
    write(stream, node.children);
}

void read(QDataStream& stream, PDFOutlineNode& node, int depth) {
    qint32 page = -1;
    stream >> node.label >> page;
    node.destinationPage = page;
    read(stream, node.children, depth);
}

template <class Value>
QByteArray packed(const Value& value) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    write(stream, value);
    return bytes;
}

template <class Value>
Value unpacked(const QByteArray& bytes) {
    QDataStream stream(bytes);
    Value value{};
    read(stream, value, 0);
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        throw PDFFacts::garbled();
    return value;
}

} // namespace

PlatformException PDFFacts::garbled() {
    return {QStringLiteral("PDFReaderGarbled"),
            Message::translate("PDFReader", "what was read of it makes no sense")};
}

QByteArray PDFFacts::pack(int number) {
    return packed(number);
}

QByteArray PDFFacts::pack(const QString& text) {
    return packed(text);
}

QByteArray PDFFacts::pack(const PDFPageBoxes& boxes) {
    return packed(boxes);
}

QByteArray PDFFacts::pack(const std::vector<PDFAnnotation>& annotations) {
    return packed(annotations);
}

QByteArray PDFFacts::pack(const std::vector<PDFOutlineNode>& nodes) {
    return packed(nodes);
}

int PDFFacts::unpackNumber(const QByteArray& packed) {
    return unpacked<int>(packed);
}

QString PDFFacts::unpackText(const QByteArray& packed) {
    return unpacked<QString>(packed);
}

PDFPageBoxes PDFFacts::unpackBoxes(const QByteArray& packed) {
    return unpacked<PDFPageBoxes>(packed);
}

std::vector<PDFAnnotation> PDFFacts::unpackAnnotations(const QByteArray& packed) {
    return unpacked<std::vector<PDFAnnotation>>(packed);
}

std::vector<PDFOutlineNode> PDFFacts::unpackOutline(const QByteArray& packed) {
    return unpacked<std::vector<PDFOutlineNode>>(packed);
}
