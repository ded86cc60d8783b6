#pragma once

#include "base/Message.h"
#include "library/BookList.h"
#include "library/CSVRecords.h"
#include "system/FileState.h"

#include <QFile>
#include <optional>

// A file as a list: CSV with the names of its columns in the first line, or JSON lines, an object
// with the same names in each.
class FileList : public BookList {
public:
    explicit FileList(const QString& path);
    void rewind() override;
    bool next(ListedBook& book) override;
    QStringList unknownColumns() const override { return iUnknown; }

private:
    [[noreturn]] void fail(const Message& cause) const;
    void checkText(const QByteArray& start) const;
    void readHeader();
    void checkUnchanged();
    bool nextOfCSV(ListedBook& book);
    bool nextOfJSON(ListedBook& book);
    ListedBook fromJSON(qint64 line, const QByteArray& text);
    void noteUnknown(const QString& column);

    QString iPath;
    QFile iFile;
    FileState iOpened;
    QByteArray iFolder;
    qint64 iStart = 0; // of the first book
    bool iIsJSON = false;
    char iSeparator = ',';
    std::optional<CSVRecords> iRecords;
    qint64 iLine = 0; // of JSON, the last one read
    QStringList iColumns;
    QStringList iUnknown;
};
