#pragma once

#include <QString>
#include <chrono>
#include <cstddef>
#include <cstdint>

// Keeps page workers, which a document may have taken over, from filling the disk: the system
// limits the size of each file, not how many there are.
class WorkFolderLimit {
public:
    // For that many pages, beside what is in the folder already.
    WorkFolderLimit(const QString& folder, std::size_t pages);

    // Looks into the folder now and then, so that it takes a fiftieth of the time at most.
    bool isExceeded();

private:
    struct Usage {
        std::size_t files = 0;
        std::uintmax_t bytes = 0;
    };
    using Clock = std::chrono::steady_clock;

    Usage usage() const;

    QString iFolder;
    Usage iMost;
    Clock::time_point iNext;
};
