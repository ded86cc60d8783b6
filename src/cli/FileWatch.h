#pragma once

#include <QStringList>
#include <functional>
#include <sys/stat.h>
#include <vector>

// Tells when files that other programs write have changed. It looks at them again and again, since
// network drives send no word of changes.
class FileWatch {
public:
    // Null paths are left out.
    explicit FileWatch(const QStringList& paths);

    // Changes count from here on. To be called before the files are read, so that none is missed
    // that comes meanwhile.
    void remember();

    // Whether some file is another one by now, or has other contents.
    bool haveChanged() const { return look() != iRemembered; }

    // Waits until some file is another one or has other contents than when it was remembered, all
    // of them are there, and they have been left alone for a moment: programs write slowly, or take
    // the old file away before the new one comes. False once it is stopped, which is asked all
    // along.
    bool waitForChange(const std::function<bool()>& stopped) const;

private:
    struct State {
        bool isThere = false;
        dev_t device = 0;
        ino_t number = 0;
        off_t size = 0;
        timespec changed{};

        bool operator==(const State& other) const;
    };
    using States = std::vector<State>;

    States look() const;

    std::vector<QByteArray> iPaths;
    States iRemembered;
};
