#include "library/CSVRecords.h"

#include <algorithm>
#include <array>
#include <csv.h>
#include <utility>

namespace {

// More than the facts of any book take.
constexpr qint64 longestRecord = 1'000'000;

constexpr qint64 blockSize = 65536;

// Behind the first line ending: LF, CR LF or CR. -1 where there is none, or may be only half of it.
qsizetype endOfLine(QByteArrayView text, bool isWhole) {
    const qsizetype feed = text.indexOf('\n');
    const qsizetype carriage = text.first(feed < 0 ? text.size() : feed).indexOf('\r');
    if (carriage < 0 || carriage + 1 == feed)
        return feed < 0 ? -1 : feed + 1;
    return carriage + 1 < text.size() || isWhole ? carriage + 1 : -1;
}

} // namespace

CSVRecords::CSVRecords(QIODevice& file, char separator, qint64 firstLine)
    : iFile(file),
      iSeparator(separator),
      iLine(firstLine),
      iParser(std::make_unique<csv_parser>()) {
    csv_init(iParser.get(), 0);
    reset();
}

CSVRecords::~CSVRecords() {
    csv_free(iParser.get());
}

void CSVRecords::reset() {
    csv_free(iParser.get());
    csv_init(iParser.get(), 0);
    csv_set_delim(iParser.get(), static_cast<unsigned char>(iSeparator));
    iBegun = {};
}

bool CSVRecords::next(Record& record) {
    const auto isBegun = [this] { return iParser->pstate != 0; };
    while (iComplete.empty()) {
        const QByteArray line = readLine();
        if (line.isEmpty() && !isBegun())
            return false;
        if (!isBegun())
            iBegun = {iLine, {}, {}};
        parseLine(line);
        if (iBegun.line == iLine)
            iSecondLine = position();
        iLine += line.endsWith('\n') || line.endsWith('\r') ? 1 : 0;
        if (isBegun() && (line.isEmpty() || position() - iSecondLine > longestRecord))
            skipUnclosed();
    }
    record = std::move(iComplete.front());
    iComplete.pop_front();
    return true;
}

QByteArray CSVRecords::readLine() {
    for (bool isWhole = false;;) {
        const QByteArrayView left = QByteArrayView(iBuffer).sliced(iBufferRead);
        qsizetype end = endOfLine(left, isWhole);
        if (end < 0 && (isWhole || left.size() >= longestRecord))
            end = left.size();
        if (end >= 0) {
            iBufferRead += end;
            return left.first(end).toByteArray();
        }
        const QByteArray block = iFile.read(blockSize);
        isWhole = block.isEmpty();
        iBuffer = left.toByteArray() + block;
        iBufferRead = 0;
    }
}

// An empty line is the end of the file.
void CSVRecords::parseLine(const QByteArray& line) {
    const auto onField = [](void* bytes, std::size_t size, void* self) {
        static_cast<CSVRecords*>(self)->iBegun.fields.append(
            QByteArray(static_cast<const char*>(bytes), qsizetype(size)));
    };
    const auto onRecord = [](int, void* self) {
        auto* records = static_cast<CSVRecords*>(self);
        records->iComplete.push_back(std::exchange(records->iBegun, {}));
    };
    if (!line.isEmpty())
        csv_parse(iParser.get(), line.constData(), std::size_t(line.size()), onField, onRecord,
                  this);
    else if (iParser->quoted == 0 || iParser->spaces > 0)
        csv_fini(iParser.get(), onField, onRecord, this);
}

void CSVRecords::skipUnclosed() {
    iComplete.push_back(
        {iBegun.line, {}, QStringLiteral("a quotation mark in it is never closed")});
    iFile.seek(iSecondLine);
    iBuffer.clear();
    iBufferRead = 0;
    iLine = iBegun.line + 1;
    reset();
}

char CSVRecords::separatorOf(const QByteArray& header) {
    constexpr std::array<char, 3> known{',', ';', '\t'};
    return *std::max_element(known.begin(), known.end(), [&](char one, char other) {
        return header.count(one) < header.count(other);
    });
}
