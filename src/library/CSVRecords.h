#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QIODevice>
#include <QString>
#include <deque>
#include <memory>

struct csv_parser;

// Reads a CSV file record by record, whatever its size: quoted fields may have separators and line
// breaks. Lines end with LF, CR LF or CR; empty ones are skipped.
class CSVRecords {
public:
    struct Record {
        qint64 line = 0; // one-based, where it begins
        QByteArrayList fields;
        QString problem; // in English: why it has no fields; null when it has
    };

    // Reads on from where the file is, which must stay open; the line there has that number.
    CSVRecords(QIODevice& file, char separator, qint64 firstLine);
    ~CSVRecords();
    CSVRecords(const CSVRecords&) = delete;
    CSVRecords& operator=(const CSVRecords&) = delete;

    // False at the end of the file. A record with a quotation mark that is never closed is one with
    // a problem, and the next one begins on the line below.
    bool next(Record& record);

    // The separator that a line with names of columns has: comma, semicolon or tab.
    static char separatorOf(const QByteArray& header);

private:
    // With its ending; empty at the end of the file. Very long ones come in parts.
    QByteArray readLine();
    qint64 position() const { return iFile.pos() - (iBuffer.size() - iBufferRead); }
    void parseLine(const QByteArray& line);
    void skipUnclosed();
    void reset();

    QIODevice& iFile;
    QByteArray iBuffer;        // of the file
    qsizetype iBufferRead = 0; // of these, those before the next line
    char iSeparator;
    qint64 iLine; // of the next line
    std::unique_ptr<csv_parser> iParser;
    std::deque<Record> iComplete;
    Record iBegun;
    qint64 iSecondLine = 0; // where the line after that of the begun record is in the file
};
