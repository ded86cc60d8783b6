#include "cli/FileWatch.h"

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

FileWatch::FileWatch(const QStringList& paths) {
    for (const QString& path : paths) {
        if (!path.isNull())
            iPaths << path;
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
        const bool isWhole = std::all_of(last.begin(), last.end(),
                                         [](const FileState& state) { return state.isThere; });
        if (isWhole && last != iRemembered && Clock::now() - quietSince >= quietTime)
            return true;
        std::this_thread::sleep_for(pollInterval);
    }
    return false;
}

FileWatch::States FileWatch::look() const {
    States states;
    for (const QString& path : iPaths)
        states.push_back(FileState::of(path));
    return states;
}
