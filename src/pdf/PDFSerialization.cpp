#include "pdf/PDFSerialization.h"

#include "pdf/PDFLimits.h"

#include <QDataStream>
#include <QIODevice>
#include <climits>
#include <cmath>

namespace {

// Far beyond what is read from a document.
constexpr int maxNesting = 100;
constexpr int maxItems = 1'000'000;

bool isFinite(const QSizeF& size) {
    return std::isfinite(size.width()) && std::isfinite(size.height());
}

bool isFinite(const QRectF& box) {
    return std::isfinite(box.x()) && std::isfinite(box.y()) && isFinite(box.size());
}

// Whether a zero-based index, -1 for none, has a one-based number.
bool isPageIndex(int index) {
    return index >= -1 && index < INT_MAX;
}

// The members of a struct in the order in which they are written and read, and what must be true of
// them.
template <class Archive>
void describe(Archive& archive, PDFPage& page) {
    archive(page.mediaBox, page.cropBox, page.rotation, page.display, page.displayError);
    archive.require(isFinite(page.mediaBox) && isFinite(page.cropBox) && isFinite(page.display));
    archive.require(page.rotation >= 0 && page.rotation < 360);
}

template <class Archive>
void describe(Archive& archive, PDFViewing& viewing) {
    archive(viewing.rightToLeft, viewing.allowsText, viewing.pageMode, viewing.openPage);
    archive.require(isPageIndex(viewing.openPage.value_or(-1)));
}

template <class Archive>
void describe(Archive& archive, MergePlan::Source& source) {
    archive(source.path, source.password);
}

template <class Archive>
void describe(Archive& archive, MergePlan::Page& page) {
    archive(page.source, page.index, page.rotation);
}

template <class Archive>
void describe(Archive& archive, MergePlan& plan) {
    archive(plan.sources, plan.pages);
    for (const MergePlan::Page& page : plan.pages)
        archive.require(page.source >= -1 && page.source < int(plan.sources.size()));
}

template <class Archive>
void describe(Archive& archive, PDFAnnotation& annotation) {
    archive(annotation.type, annotation.bounds, annotation.url, annotation.destinationPage,
            annotation.destinationAcross);
    archive.require(isFinite(annotation.bounds) && std::isfinite(annotation.destinationAcross));
    archive.require(isPageIndex(annotation.destinationPage.value_or(-1)));
}

template <class Archive>
void describe(Archive& archive, PDFOutlineNode& node) {
    archive(node.label, node.destinationPage, node.destinationAcross, node.children);
    archive.require(isPageIndex(node.destinationPage) && std::isfinite(node.destinationAcross));
}

template <class Archive>
void describe(Archive& archive, PDFTextWord& word) {
    archive(word.text, word.start, word.length, word.size, word.style, word.tag);
    archive.require(std::isfinite(word.start) && std::isfinite(word.length));
    archive.require(std::isfinite(word.size) && word.size >= 0);
    archive.require(word.style >= 0 && word.style <= (boldText | italicText | monospacedText));
}

template <class Archive>
void describe(Archive& archive, PDFTextLine& line) {
    archive(line.box, line.turn, line.rightToLeft, line.words, line.baseline);
    archive.require(line.turn == 0 || line.turn == 90 || line.turn == 180 || line.turn == 270);
    archive.require(isFinite(line.box) && std::isfinite(line.baseline));
}

template <class Archive>
void describe(Archive& archive, PDFTag& tag) {
    archive(tag.kind, tag.element, tag.level, tag.cell);
    archive.require(tag.kind >= PDFTag::Kind::paragraph && tag.kind <= PDFTag::Kind::artifact);
    archive.require(tag.level >= 0 && tag.level <= PDFTag::deepestLevel);
    archive.require(tag.cell >= 0 && tag.cell <= PDFTag::lastCell);
}

template <class Archive>
void describe(Archive& archive, PDFAlternative& alternative) {
    archive(alternative.box, alternative.text);
    archive.require(isFinite(alternative.box));
}

template <class Archive>
void describe(Archive& archive, PDFPageText& text) {
    archive(text.lines, text.tags, text.alternatives);
    for (const PDFTextLine& line : text.lines) {
        for (const PDFTextWord& word : line.words)
            archive.require(word.tag >= -1 && word.tag < int(text.tags.size()));
    }
}

template <class Archive>
void describe(Archive& archive, PDFMark& mark) {
    archive(mark.box, mark.kind);
    archive.require(isFinite(mark.box) && mark.kind >= PDFMark::Kind::image &&
                    mark.kind <= PDFMark::Kind::drawing);
}

template <class Archive>
void describe(Archive& archive, PDFPageContent& content) {
    archive(content.text, content.marks);
    archive.require(content.marks.size() <= PDFLimits::maxPageMarks);
}

class Writer {
public:
    explicit Writer(QByteArray& bytes) : iStream(&bytes, QIODevice::WriteOnly) {}

    template <class... Values>
    void operator()(const Values&... values) {
        (write(values), ...);
    }
    void require(bool /*isSound*/) {}

private:
    template <class Value>
    void write(const Value& value) {
        if constexpr (requires { iStream << value; })
            iStream << value;
        else
            describe(*this, const_cast<Value&>(value)); // which only reads it
    }
    void write(const std::optional<int>& number) { iStream << number.value_or(-1); }
    template <class Item>
    void write(const std::vector<Item>& items) {
        iStream << quint32(items.size());
        for (const Item& item : items)
            write(item);
    }

    QDataStream iStream;
};

class Reader {
public:
    explicit Reader(const QByteArray& bytes) : iStream(bytes) {}

    template <class... Values>
    void operator()(Values&... values) {
        (read(values), ...);
    }
    void require(bool isSound) {
        if (!isSound)
            iStream.setStatus(QDataStream::ReadCorruptData);
    }
    bool isOk() const { return iStream.status() == QDataStream::Ok; }
    bool isAtEnd() const { return iStream.atEnd(); }

private:
    template <class Value>
    void read(Value& value) {
        if constexpr (requires { iStream >> value; })
            iStream >> value;
        else
            describe(*this, value);
    }
    void read(std::optional<int>& number) {
        int found = -1;
        iStream >> found;
        if (found >= 0)
            number = found;
    }
    // A false count fails at the end of the data.
    template <class Item>
    void read(std::vector<Item>& items) {
        quint32 count = 0;
        iStream >> count;
        ++iDepth;
        for (; count > 0 && isOk(); --count) {
            require(iDepth <= maxNesting && ++iItems <= maxItems);
            if (isOk())
                read(items.emplace_back());
        }
        --iDepth;
    }

    QDataStream iStream;
    int iDepth = 0; // of lists
    int iItems = 0; // in all lists so far
};

} // namespace

PlatformException PDFSerialization::malformedAnswer() {
    return {ErrorKind::readerMalformedAnswer,
            Message::translate("PDFReader", "what was read of it makes no sense")};
}

template <class Value>
QByteArray PDFSerialization::pack(const Value& value) {
    QByteArray bytes;
    Writer writer(bytes);
    writer(value);
    return bytes;
}

template <class Value>
Value PDFSerialization::unpack(const QByteArray& packed) {
    Value value{};
    Reader reader(packed);
    reader(value);
    if (!reader.isOk() || !reader.isAtEnd())
        throw malformedAnswer();
    return value;
}

template QByteArray PDFSerialization::pack(const int&);
template QByteArray PDFSerialization::pack(const QString&);
template QByteArray PDFSerialization::pack(const PDFPage&);
template QByteArray PDFSerialization::pack(const PDFViewing&);
template QByteArray PDFSerialization::pack(const MergePlan&);
template QByteArray PDFSerialization::pack(const std::vector<QString>&);
template QByteArray PDFSerialization::pack(const std::vector<QSizeF>&);
template QByteArray PDFSerialization::pack(const std::vector<PDFAnnotation>&);
template QByteArray PDFSerialization::pack(const std::vector<PDFOutlineNode>&);
template QByteArray PDFSerialization::pack(const PDFPageContent&);

template int PDFSerialization::unpack(const QByteArray&);
template QString PDFSerialization::unpack(const QByteArray&);
template PDFPage PDFSerialization::unpack(const QByteArray&);
template PDFViewing PDFSerialization::unpack(const QByteArray&);
template MergePlan PDFSerialization::unpack(const QByteArray&);
template std::vector<QString> PDFSerialization::unpack(const QByteArray&);
template std::vector<QSizeF> PDFSerialization::unpack(const QByteArray&);
template std::vector<PDFAnnotation> PDFSerialization::unpack(const QByteArray&);
template std::vector<PDFOutlineNode> PDFSerialization::unpack(const QByteArray&);
template PDFPageContent PDFSerialization::unpack(const QByteArray&);
