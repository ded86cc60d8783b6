#pragma once

#include "base/Stopwatch.h"

#include <QJsonObject>
#include <QString>

struct Book;

// Time spent in the steps of one publish run, for the benchmarks.
class PublishTiming {
public:
    void opened();
    void imported(const Book& book);
    void published();

    // Seconds of the steps so far: "open", "import", "publish" and "total" in elapsed time;
    // "draw", "encode" and "write" summed over the "workers" page workers, a web book's files
    // included, and "idle", their waiting time during the import.
    const QJsonObject& seconds() const { return iSeconds; }

    // Writes them as JSON. A file that can't be written is reported, not an error: the book was
    // made.
    void write(const QString& path) const;

private:
    double lap();

    Stopwatch iWatch;
    QJsonObject iSeconds;
};
