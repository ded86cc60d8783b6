#pragma once

#include <QJsonObject>
#include <QString>
#include <chrono>

class FlashPageSourcePDF;

// Where the time of one publish run goes, for the benchmarks.
class PublishTiming {
public:
    void opened();
    void imported(const FlashPageSourcePDF& source);
    void published();

    // Writes seconds as JSON: "open", "import", "publish" and "total" by the clock; "draw",
    // "encode" and "write" summed over the "workers" page workers, and "idle", what they waited
    // during the import. A file that can't be written is reported: the book is there all the same.
    void write(const QString& path) const;

private:
    double lap();

    std::chrono::steady_clock::time_point iLap = std::chrono::steady_clock::now();
    QJsonObject iSeconds;
};
