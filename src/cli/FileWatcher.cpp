#include "cli/FileWatcher.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Short enough that Ctrl-C seems immediate.
constexpr auto pollInterval = 100ms;
constexpr auto settleTime = 600ms;

} // namespace

FileWatcher::FileWatcher(const QStringList& paths) {
    for (const QString& path : paths) {
        if (!path.isEmpty())
            iPaths << path;
    }
}

void FileWatcher::takeSnapshot() {
    iSnapshot = currentStates();
}

bool FileWatcher::waitForChange(const std::function<bool()>& stopped) const {
    States last = iSnapshot;
    auto quietSince = Clock::now();
    while (!stopped()) {
        States now = currentStates();
        if (now != last) {
            quietSince = Clock::now();
            last = std::move(now);
        }
        const bool isWhole = std::all_of(last.begin(), last.end(),
                                         [](const FileState& state) { return state.isThere; });
        if (isWhole && last != iSnapshot && Clock::now() - quietSince >= settleTime)
            return true;
        std::this_thread::sleep_for(pollInterval);
    }
    return false;
}

FileWatcher::States FileWatcher::currentStates() const {
    States states;
    for (const QString& path : iPaths)
        states.push_back(FileState::of(path));
    return states;
}
