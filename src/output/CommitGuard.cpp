#include "output/CommitGuard.h"

#include "base/Log.h"
#include "base/Message.h"
#include "output/CommitSwitch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// All but those in ascending order: the programs that read our output wait until it is closed.
void closeAllBut(const std::vector<int>& kept) {
    unsigned first = 0;
    for (const int number : kept) {
        if (number >= int(first)) {
            if (number > int(first))
                ::close_range(first, unsigned(number) - 1, 0);
            first = unsigned(number) + 1;
        }
    }
    ::close_range(first, ~0U, 0);
}

// Between fork() and _exit() only functions that are safe in signal handlers may be called: another
// thread may have held any lock.
[[noreturn]] void guard(const CommitSwitch& steps, int connection, const std::vector<int>& kept) {
    ::setsid();
    closeAllBut(kept);
    char byte = 0;
    // A byte means that all is well; the end of the connection, that the program has died.
    if (::recv(connection, &byte, 1, 0) == 0 && (steps.isDone() || steps.undo()))
        steps.removeJournal();
    ::_exit(0);
}

} // namespace

CommitGuard::CommitGuard(const CommitSwitch& steps) {
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0) {
        iConnection = FileDescriptor(ends[0]);
        FileDescriptor other(ends[1]);
        std::vector<int> kept = steps.descriptors();
        kept.push_back(other.number());
        std::sort(kept.begin(), kept.end());
        // Nothing may interrupt it, or end it for a reason that is not ours.
        sigset_t all{};
        sigset_t usual{};
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &usual);
        iProcess = ::fork();
        if (iProcess == 0) {
            ::close(ends[0]);
            guard(steps, ends[1], kept);
        }
        ::pthread_sigmask(SIG_SETMASK, &usual, nullptr);
    }
    if (iProcess < 0)
        Log("CommitGuard").warn(Message::ofLastSystemError().english());
}

CommitGuard::~CommitGuard() {
    if (iProcess < 0)
        return;
    ::send(iConnection.number(), "", 1, MSG_NOSIGNAL);
    while (::waitpid(iProcess, nullptr, 0) < 0 && errno == EINTR) {
    }
}
