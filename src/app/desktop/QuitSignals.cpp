#include "app/desktop/QuitSignals.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// Writing to it is one of the few things that a signal handler may do.
std::array<int, 2> pair{-1, -1};

void wake(int /*signal*/) {
    const char letter = 1;
    [[maybe_unused]] const auto written = ::write(pair[0], &letter, 1);
}

} // namespace

QuitSignals::QuitSignals(QObject* parent) : QObject(parent) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()) != 0)
        return;
    auto* notifier = new QSocketNotifier(pair[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        Q_EMIT requested();
    });
    struct sigaction action {};
    action.sa_handler = wake;
    ::sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(signal, &action, nullptr);
}
