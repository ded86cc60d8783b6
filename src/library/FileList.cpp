#include "library/FileList.h"

#include "base/PlatformException.h"
#include "library/ListColumns.h"
#include "system/NameAliases.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cerrno>
#include <utility>
#include <vector>

namespace {

using Values = std::vector<std::pair<QString, QByteArray>>;

constexpr qint64 longestLine = 1'000'000;
const QByteArray byteOrderMark = "\xEF\xBB\xBF";

// Several values of a column become one text with semicolons.
QByteArray textOf(const QJsonValue& value) {
    if (value.isBool())
        return value.toBool() ? "yes" : "no";
    if (!value.isArray())
        return value.toVariant().toString().toUtf8();
    QByteArrayList parts;
    for (const auto& part : value.toArray())
        parts << textOf(part);
    return parts.join("; ");
}

// Why the list can't be opened. Where its folder is gone as well, a share may be missing.
Message causeOf(int error, const QString& path) {
    if (error == ENOENT && QFileInfo::exists(QFileInfo(path).absolutePath()))
        return Message(QStringLiteral("no such file"));
    return Message::ofSystemError(error);
}

ListedBook withProblem(qint64 line, const QString& problem) {
    ListedBook book;
    book.line = line;
    book.problem = problem;
    return book;
}

} // namespace

FileList::FileList(const QString& path)
    : iPath(path),
      iFile(path),
      iOpened(FileState::of(path)),
      iFolder(NameAliases::encoded(QFileInfo(path).absolutePath())) {
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        fail(Message(QStringLiteral("is no file and no folder")));
    if (!iFile.open(QIODevice::ReadOnly))
        fail(causeOf(errno, path));
    const QByteArray start = iFile.peek(longestLine);
    checkText(start);
    iStart = start.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    iIsJSON = start.mid(iStart).trimmed().startsWith('{');
    if (!iIsJSON)
        readHeader();
    FileList::rewind();
}

void FileList::fail(const Message& cause) const {
    throw PlatformException(ErrorKind::list, Message::about(iPath, cause));
}

void FileList::checkText(const QByteArray& start) const {
    if (start.startsWith("\xFF\xFE") || start.startsWith("\xFE\xFF"))
        fail(Message(QStringLiteral("is in UTF-16; save it as CSV in UTF-8")));
    if (start.startsWith("%PDF-"))
        fail(Message(QStringLiteral("is a PDF, not a list of PDFs")));
    if (start.startsWith("PK\x03\x04"))
        fail(Message(QStringLiteral("is a spreadsheet; save it as CSV")));
    if (start.trimmed().isEmpty())
        fail(Message(QStringLiteral("is empty")));
}

void FileList::readHeader() {
    iFile.seek(iStart);
    iSeparator = CSVRecords::separatorOf(iFile.readLine(longestLine));
    iFile.seek(iStart);
    CSVRecords records(iFile, iSeparator, 1);
    CSVRecords::Record header;
    records.next(header);
    for (const QByteArray& name : std::as_const(header.fields)) {
        iColumns << NameAliases::text(name).trimmed().toLower();
        noteUnknown(iColumns.back());
    }
    if (!iColumns.contains(QStringLiteral("pdf")))
        fail(Message(QStringLiteral("its first line names no column \"pdf\"")));
}

void FileList::noteUnknown(const QString& column) {
    if (!column.isEmpty() && !ListColumns::isKnown(column) && !iUnknown.contains(column))
        iUnknown << column;
}

void FileList::rewind() {
    iFile.seek(iStart);
    iLine = 0;
    if (iIsJSON)
        return;
    iRecords.emplace(iFile, iSeparator, 1);
    CSVRecords::Record header;
    iRecords->next(header);
}

bool FileList::next(ListedBook& book) {
    if (iIsJSON ? nextOfJSON(book) : nextOfCSV(book))
        return true;
    checkUnchanged();
    return false;
}

// Half of one list and half of another are none.
void FileList::checkUnchanged() {
    if (iFile.error() != QFileDevice::NoError)
        fail(Message(iFile.errorString()).temporary());
    if (!iOpened.isAsWritten(FileState::of(iPath)))
        fail(Message(QStringLiteral("was changed while it was read")).temporary());
}

bool FileList::nextOfCSV(ListedBook& book) {
    CSVRecords::Record record;
    if (!iRecords->next(record))
        return false;
    if (!record.problem.isNull() || record.fields.size() > iColumns.size()) {
        book = withProblem(record.line, record.problem.isNull()
                                            ? QStringLiteral("it has %1 columns; the first line "
                                                             "names %2")
                                                  .arg(record.fields.size())
                                                  .arg(iColumns.size())
                                            : record.problem);
        return true;
    }
    Values values;
    for (qsizetype i = 0; i < record.fields.size(); ++i)
        values.emplace_back(iColumns[i], record.fields[i]);
    book = ListColumns::book(record.line, values, iFolder);
    return true;
}

bool FileList::nextOfJSON(ListedBook& book) {
    for (;;) {
        QByteArray text = iFile.readLine(longestLine);
        if (text.isEmpty())
            return false;
        ++iLine;
        bool isTooLong = false;
        for (; !text.endsWith('\n') && !iFile.atEnd(); isTooLong = true)
            text = iFile.readLine(longestLine);
        if (!isTooLong && text.trimmed().isEmpty())
            continue;
        book = isTooLong ? withProblem(iLine, QStringLiteral("it is too long"))
                         : fromJSON(iLine, text);
        return true;
    }
}

ListedBook FileList::fromJSON(qint64 line, const QByteArray& text) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject()) {
        return withProblem(
            line, error.error == QJsonParseError::NoError
                      ? QStringLiteral("it is no JSON object")
                      : QStringLiteral("it is no JSON object (%1)").arg(error.errorString()));
    }
    Values values;
    const QJsonObject object = document.object();
    for (auto field = object.begin(); field != object.end(); ++field) {
        const QString column = field.key().toLower();
        noteUnknown(column);
        // The option may be given many times.
        if (column == QStringLiteral("set") && field->isArray()) {
            for (const auto& one : field->toArray())
                values.emplace_back(column, textOf(one));
        } else if (!field->isNull())
            values.emplace_back(column, textOf(*field));
    }
    return ListColumns::book(line, values, iFolder);
}
