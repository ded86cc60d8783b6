#pragma once

#include "platform/FileState.h"

#include <QStringList>
#include <functional>
#include <vector>

// Tells when files that other programs write have changed. It looks at them again and again, since
// network drives send no word of changes.
class FileWatcher {
public:
    // Null paths are left out.
    explicit FileWatcher(const QStringList& paths);

    // Changes count from here on. To be called before the files are read, so that none is missed
    // that comes meanwhile.
    void takeSnapshot();

    // Waits until some file is another one or has other contents than when it was remembered, all
    // of them are there, and they have been left alone for a moment: programs write slowly, or take
    // the old file away before the new one comes. False once it is stopped, which is asked all
    // along.
    bool waitForChange(const std::function<bool()>& stopped) const;

private:
    using States = std::vector<FileState>;

    States currentStates() const;

    QStringList iPaths;
    States iSnapshot;
};
