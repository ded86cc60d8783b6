#include "library/CSVRecords.h"

#include <algorithm>
#include <array>
#include <csv.h>
#include <utility>

namespace {

// More than the facts of any book take.
constexpr qint64 longestRecord = 1'000'000;

// LF, CR LF, or CR alone.
qint64 lineEndsIn(const QByteArray& text) {
    return text.count('\r') + (text.endsWith('\n') && !text.endsWith("\r\n") ? 1 : 0);
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
        const qint64 start = iFile.pos();
        const QByteArray line = iFile.readLine(longestRecord);
        if (line.isEmpty() && !isBegun())
            return false;
        if (!isBegun())
            iBegun = {iLine, {}, {}};
        parseLine(line);
        if (iBegun.line == iLine)
            iSecondLine = start + line.size();
        iLine += lineEndsIn(line);
        if (isBegun() && (line.isEmpty() || iFile.pos() - iSecondLine > longestRecord))
            skipUnclosed();
    }
    record = std::move(iComplete.front());
    iComplete.pop_front();
    return true;
}

// An empty line is the end of the file.
void CSVRecords::parseLine(const QByteArray& line) {
    const auto onField = [](void* bytes, std::size_t size, void* self) {
        static_cast<CSVRecords*>(self)->iBegun.fields.append(
            QByteArray(static_cast<const char*>(bytes), qsizetype(size)));
    };
    const auto onRecord = [](int, void* self) {
        auto* records = static_cast<CSVRecords*>(self);
        // Behind a CR alone another one follows.
        const qint64 next = records->iBegun.line + 1;
        records->iComplete.push_back(std::exchange(records->iBegun, {next, {}, {}}));
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
    iLine = iBegun.line + 1;
    reset();
}

char CSVRecords::separatorOf(const QByteArray& header) {
    constexpr std::array<char, 3> known{',', ';', '\t'};
    return *std::max_element(known.begin(), known.end(), [&](char one, char other) {
        return header.count(one) < header.count(other);
    });
}
