#include "pdf/PDFSerialization.h"

#include <QDataStream>
#include <QIODevice>
#include <cmath>

namespace {

// Limits for unpacking, far beyond what is read from a document.
class Bounds {
public:
    // For the items of a list: one level deeper.
    Bounds beneath() const { return {iDepth + 1, iItems}; }
    // Whether one more item may be read.
    bool allowItem() { return iDepth <= maxDepth && ++iItems <= maxItems; }

    static Bounds outermost(int& items) { return {0, items}; }

private:
    static constexpr int maxDepth = 100;
    static constexpr int maxItems = 1'000'000;

    Bounds(int depth, int& items) : iDepth(depth), iItems(items) {}

    int iDepth;
    int& iItems; // in all lists so far
};

void write(QDataStream& stream, const PDFOutlineNode& node);
void read(QDataStream& stream, PDFOutlineNode& node, Bounds bounds);
void write(QDataStream& stream, const PDFAnnotation& annotation);
void read(QDataStream& stream, PDFAnnotation& annotation, Bounds bounds);

void write(QDataStream& stream, const PDFTextLine& line);
void read(QDataStream& stream, PDFTextLine& line, Bounds bounds);
void write(QDataStream& stream, const PDFTextWord& word);
void read(QDataStream& stream, PDFTextWord& word, Bounds bounds);

void write(QDataStream& stream, int number) {
    stream << qint32(number);
}

void read(QDataStream& stream, int& number, Bounds /*bounds*/) {
    qint32 value = 0;
    stream >> value;
    number = value;
}

void write(QDataStream& stream, const QString& text) {
    stream << text;
}

void read(QDataStream& stream, QString& text, Bounds /*bounds*/) {
    stream >> text;
}

template <class Item>
void write(QDataStream& stream, const std::vector<Item>& items) {
    stream << quint32(items.size());
    for (const Item& item : items)
        write(stream, item);
}

// A false count fails at the end of the data.
template <class Item>
void read(QDataStream& stream, std::vector<Item>& items, Bounds bounds) {
    quint32 count = 0;
    stream >> count;
    while (count-- > 0 && stream.status() == QDataStream::Ok) {
        Item item{};
        if (bounds.allowItem())
            read(stream, item, bounds.beneath());
        else
            stream.setStatus(QDataStream::ReadCorruptData);
        items.push_back(std::move(item));
    }
}

void write(QDataStream& stream, const PDFPage& page) {
    stream << page.mediaBox << page.cropBox << qint32(page.rotation) << page.display
           << page.displayError;
}

void read(QDataStream& stream, PDFPage& page, Bounds /*bounds*/) {
    qint32 rotation = 0;
    stream >> page.mediaBox >> page.cropBox >> rotation >> page.display >> page.displayError;
    page.rotation = rotation;
}

void write(QDataStream& stream, const PDFAnnotation& annotation) {
    stream << annotation.type << annotation.bounds << annotation.url
           << qint32(annotation.destinationPage.value_or(-1));
}

void read(QDataStream& stream, PDFAnnotation& annotation, Bounds /*bounds*/) {
    qint32 page = -1;
    stream >> annotation.type >> annotation.bounds >> annotation.url >> page;
    if (page >= 0)
        annotation.destinationPage = page;
}

void write(QDataStream& stream, const PDFOutlineNode& node) {
    stream << node.label << qint32(node.destinationPage);
    write(stream, node.children);
}

void read(QDataStream& stream, PDFOutlineNode& node, Bounds bounds) {
    qint32 page = -1;
    stream >> node.label >> page;
    node.destinationPage = page;
    read(stream, node.children, bounds);
}

void write(QDataStream& stream, const PDFTextWord& word) {
    stream << word.text << word.start << word.length;
}

void read(QDataStream& stream, PDFTextWord& word, Bounds /*bounds*/) {
    stream >> word.text >> word.start >> word.length;
    if (!std::isfinite(word.start) || !std::isfinite(word.length))
        stream.setStatus(QDataStream::ReadCorruptData);
}

void write(QDataStream& stream, const PDFTextLine& line) {
    stream << line.box << qint32(line.turn) << line.rightToLeft;
    write(stream, line.words);
}

void read(QDataStream& stream, PDFTextLine& line, Bounds bounds) {
    qint32 turn = 0;
    stream >> line.box >> turn >> line.rightToLeft;
    line.turn = turn;
    read(stream, line.words, bounds);
    const bool isSound = (turn == 0 || turn == 90 || turn == 180 || turn == 270) &&
                         std::isfinite(line.box.x()) && std::isfinite(line.box.y()) &&
                         std::isfinite(line.box.width()) && std::isfinite(line.box.height());
    if (!isSound)
        stream.setStatus(QDataStream::ReadCorruptData);
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
    int items = 0;
    read(stream, value, Bounds::outermost(items));
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        throw PDFSerialization::malformedAnswer();
    return value;
}

} // namespace

PlatformException PDFSerialization::malformedAnswer() {
    return {ErrorKind::readerMalformedAnswer,
            Message::translate("PDFReader", "what was read of it makes no sense")};
}

QByteArray PDFSerialization::pack(int number) {
    return packed(number);
}

QByteArray PDFSerialization::pack(const QString& text) {
    return packed(text);
}

QByteArray PDFSerialization::pack(const PDFPage& page) {
    return packed(page);
}

QByteArray PDFSerialization::pack(const std::vector<PDFAnnotation>& annotations) {
    return packed(annotations);
}

QByteArray PDFSerialization::pack(const std::vector<PDFOutlineNode>& nodes) {
    return packed(nodes);
}

QByteArray PDFSerialization::pack(const std::vector<QString>& texts) {
    return packed(texts);
}

QByteArray PDFSerialization::pack(const std::vector<PDFTextLine>& lines) {
    return packed(lines);
}

int PDFSerialization::unpackNumber(const QByteArray& packed) {
    return unpacked<int>(packed);
}

QString PDFSerialization::unpackText(const QByteArray& packed) {
    return unpacked<QString>(packed);
}

PDFPage PDFSerialization::unpackPage(const QByteArray& packed) {
    return unpacked<PDFPage>(packed);
}

std::vector<PDFAnnotation> PDFSerialization::unpackAnnotations(const QByteArray& packed) {
    return unpacked<std::vector<PDFAnnotation>>(packed);
}

std::vector<PDFOutlineNode> PDFSerialization::unpackOutline(const QByteArray& packed) {
    return unpacked<std::vector<PDFOutlineNode>>(packed);
}

std::vector<QString> PDFSerialization::unpackTexts(const QByteArray& packed) {
    return unpacked<std::vector<QString>>(packed);
}

std::vector<PDFTextLine> PDFSerialization::unpackTextLines(const QByteArray& packed) {
    return unpacked<std::vector<PDFTextLine>>(packed);
}
