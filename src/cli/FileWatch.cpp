#include "cli/FileWatch.h"

#include <QFile>
#include <algorithm>
#include <chrono>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Often enough that Ctrl-C seems to be answered at once.
constexpr auto pollInterval = 100ms;
constexpr auto quietTime = 600ms;

} // namespace

bool FileWatch::State::operator==(const State& other) const {
    return isThere == other.isThere && device == other.device && number == other.number &&
           size == other.size && changed.tv_sec == other.changed.tv_sec &&
           changed.tv_nsec == other.changed.tv_nsec;
}

FileWatch::FileWatch(const QStringList& paths) {
    for (const QString& path : paths) {
        if (!path.isNull())
            iPaths.push_back(QFile::encodeName(path));
    }
}

void FileWatch::remember() {
    iRemembered = look();
}

bool FileWatch::waitForChange(const std::function<bool()>& stopped) const {
    States last = iRemembered;
    auto quietSince = Clock::now();
    while (!stopped()) {
        States now = look();
        if (now != last) {
            quietSince = Clock::now();
            last = std::move(now);
        }
        const bool isWhole =
            std::all_of(last.begin(), last.end(), [](const State& state) { return state.isThere; });
        if (isWhole && last != iRemembered && Clock::now() - quietSince >= quietTime)
            return true;
        std::this_thread::sleep_for(pollInterval);
    }
    return false;
}

FileWatch::States FileWatch::look() const {
    States states;
    for (const QByteArray& path : iPaths) {
        struct stat info {};
        State state;
        if (::stat(path.constData(), &info) == 0)
            state = {true, info.st_dev, info.st_ino, info.st_size, info.st_mtim};
        states.push_back(state);
    }
    return states;
}
