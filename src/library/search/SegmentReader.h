#pragma once

#include "library/search/Sqlite.h"
#include "system/FileState.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <memory>
#include <vector>

// Searches one segment of a library's full text index. Not for several threads at once.
class SegmentReader {
public:
    struct Page {
        qint64 row;
        double score; // the higher, the better
    };
    struct Found {
        std::vector<Page> pages; // the best ones, in no order
        qint64 count = 0;        // of all that were looked at
        bool isMore = false;     // there may be others
    };
    struct Limits {
        std::size_t mostPages; // in the result
        qint64 mostRanked;     // matches that are compared; the rest is only counted
        qint64 mostCounted;
    };
    struct Place {
        QString book; // its ID; null when it is gone
        int position = 0;
    };

    explicit SegmentReader(const QString& file);

    // Opens the file if it is another one than before. False when there is none that can be used.
    bool refresh();
    // Searches for an expression of FTS5, in one book if it is named. Throws PlatformException.
    Found find(const QByteArray& expression, const QString& book, const Limits& limits,
               std::chrono::steady_clock::time_point deadline);
    Place placeOf(qint64 row);

private:
    struct Rows {
        qint64 first;
        qint64 last;
    };
    // Statements use the database.
    struct Open;

    Rows rowsOf(const QString& book);

    QString iFile;
    FileState iState;
    std::shared_ptr<Open> iOpen; // null for none
};
