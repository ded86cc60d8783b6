#pragma once

#include "base/Stopwatch.h"

#include <QString>
#include <chrono>

// What has come of the books of a run so far.
struct LibraryCounts {
    qint64 made = 0;
    qint64 upToDate = 0;
    qint64 incomplete = 0;
    qint64 failed = 0;
    qint64 tryAgain = 0;
    qint64 pages = 0; // of those made

    qint64 books() const { return made + upToDate + incomplete + failed + tryAgain; }
    // "3 made, 1 failed".
    QString text() const;
};

// Shows how far a run over a library is, on standard error: a line that is redrawn on a terminal,
// otherwise a line for every tenth. Shows nothing when quiet.
class LibraryProgress {
public:
    LibraryProgress(qint64 total, bool isQuiet);
    ~LibraryProgress();
    LibraryProgress(const LibraryProgress&) = delete;
    LibraryProgress& operator=(const LibraryProgress&) = delete;

    void show(const LibraryCounts& counts);
    // Prints a line of its own.
    void report(const QString& line);
    // Removes what is shown.
    void clear();

private:
    QString rate(const LibraryCounts& counts) const;

    qint64 iTotal;
    bool iQuiet;
    bool iIsTerminal;
    bool iIsShown = false;
    qint64 iLastTenth = 0;
    std::chrono::steady_clock::time_point iStart = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point iNextDraw;
};
