#include "cli/Interrupt.h"

#include <csignal>
#include <initializer_list>

namespace {

volatile std::sig_atomic_t requested = 0;

void raiseFlag(int /*signal*/) {
    requested = 1;
}

// Whoever starts the program with a signal switched off, as nohup does, means it to go on.
void watchSignal(int signal) {
    struct sigaction action {};
    if (::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN)
        return;
    action = {};
    action.sa_handler = raiseFlag;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

void Interrupt::watch() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        watchSignal(signal);
    // Nobody to read the progress is no reason to stop.
    ::signal(SIGPIPE, SIG_IGN);
}

bool Interrupt::wasRequested() {
    return requested != 0;
}
