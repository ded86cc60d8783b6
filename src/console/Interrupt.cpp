#include "console/Interrupt.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t requested = 0;

void raiseFlag(int /*signal*/) {
    requested = 1;
}

// nohup ignores SIGHUP: the program is to go on when its terminal is closed.
bool ignoresHangUp() {
    struct sigaction action {};
    return ::sigaction(SIGHUP, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

void Interrupt::watch() {
    struct sigaction action {};
    action.sa_handler = raiseFlag;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    if (!ignoresHangUp())
        ::sigaction(SIGHUP, &action, nullptr);
    // A closed progress pipe is no reason to stop.
    ::signal(SIGPIPE, SIG_IGN);
}

bool Interrupt::wasRequested() {
    return requested != 0;
}
