#include "pdf/DrawTimeout.h"

#include "base/PlatformException.h"

#include <algorithm>

DrawTimeout::DrawTimeout(const DrawControl& control)
    : iControl(control),
      iDeadline(std::chrono::steady_clock::now() + control.timeLimit),
      iThread([this](const std::stop_token& ended) { watch(ended); }) {}

void DrawTimeout::throwIfEnded() const {
    if (isStopped()) {
        throw PlatformException(ErrorKind::pageStopped,
                                Message::translate("PageFailure", "drawing it was stopped"));
    }
    if (iTimedOut) {
        throw PlatformException(ErrorKind::pageTimeout,
                                Message::translate("PageFailure", "drawing it took too long"));
    }
}

void DrawTimeout::watch(const std::stop_token& ended) {
    std::unique_lock lock(iMutex);
    while (!ended.stop_requested()) {
        const auto now = std::chrono::steady_clock::now();
        if (now >= iDeadline || isStopped()) {
            iTimedOut = now >= iDeadline;
            iCookie.abort = 1;
            return;
        }
        const auto next =
            iControl.stop ? std::min(iDeadline, now + std::chrono::milliseconds(20)) : iDeadline;
        iWake.wait_until(lock, ended, next, [] { return false; });
    }
}
