#pragma once

#include "system/FileState.h"

#include <QStringList>
#include <functional>
#include <vector>

// Detects changes of files by other programs. It polls, since network drives send no notifications.
class FileWatcher {
public:
    // Empty paths are ignored.
    explicit FileWatcher(const QStringList& paths);

    // Sets the baseline for changes. Call it before reading the files, so that no change during
    // reading is missed.
    void takeSnapshot();

    // Waits until a file differs from the snapshot, all files exist, and none has changed for a
    // moment: programs write slowly, or remove the old file before the new one appears. False when
    // stopped, which is polled, returns true.
    bool waitForChange(const std::function<bool()>& stopped) const;

private:
    using States = std::vector<FileState>;

    States currentStates() const;

    QStringList iPaths;
    States iSnapshot;
};
