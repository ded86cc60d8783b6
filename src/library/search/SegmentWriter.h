#pragma once

#include "library/LibraryLayout.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <map>

class Sqlite;

// Brings a segment of a library's full text index up to date with the books. Readers have the old
// file until the new one is whole. The caller keeps others from writing the same segment.
class SegmentWriter {
public:
    struct Report {
        qint64 books = 0; // in the segment afterwards
        qint64 pages = 0; // of these
        int added = 0;    // new or changed
        int removed = 0;
        QStringList unreadable; // books whose text can't be read; they are not in the index
    };
    // Asked after each book; ends the work with an exception.
    using CheckCancelled = std::function<void()>;

    SegmentWriter(const LibraryLayout& library, int segment, CheckCancelled check);

    // Throws PlatformException.
    Report update();

private:
    struct Book {
        qint64 first = 0; // number of its first row
        int pages = 0;
        QByteArray stamp; // changes with the book
    };
    using Books = QHash<QString, Book>;

    Books wantedBooks() const;
    void readOld();
    bool isUpToDate(const QString& id, const Books& wanted) const;
    // Without these books.
    bool isWorthKeeping(const QStringList& gone) const;
    void write(const QStringList& gone, const std::map<QString, Book>& fresh);
    void addBooks(const Sqlite& database, const std::map<QString, Book>& fresh);
    void replaceOld(const QString& part) const;

    LibraryLayout iLibrary;
    int iSegment;
    QString iFile;
    CheckCancelled iCheck;
    Books iOld;
    qint64 iNext = 0; // 0: there is no segment, or one of another version
    Report iReport;
};
