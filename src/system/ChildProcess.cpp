#include "system/ChildProcess.h"

#include "base/PlatformException.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX does not declare it

namespace {

[[noreturn]] void fail(const std::string& program, int error) {
    throw PlatformException(
        ErrorKind::processStart,
        Message::about(QString::fromLocal8Bit(program.c_str()), Message::ofSystemError(error)));
}

struct Channel {
    FileDescriptor ours;
    FileDescriptor theirs;
};

// Sockets rather than pipes: writing to a socket whose peer is gone can return an error instead of
// raising SIGPIPE.
Channel makeChannel(const std::string& program) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        fail(program, errno);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments) {
    Channel input = makeChannel(program);
    Channel output = makeChannel(program);
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const auto& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.theirs.number(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.theirs.number(), STDOUT_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&attributes, 0);
    const int error =
        posix_spawn(&iProcess, program.c_str(), &actions, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    if (error != 0)
        fail(program, error);
    iToChild = std::move(input.ours);
    iFromChild = std::move(output.ours);
}

ChildProcess::~ChildProcess() {
    kill();
    waitForEnd();
}

bool ChildProcess::writeLine(const QByteArray& line) {
    const QByteArray data = line + '\n';
    for (qsizetype done = 0; done < data.size();) {
        const ssize_t count = ::send(iToChild.number(), data.constData() + done,
                                     std::size_t(data.size() - done), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(count, 0);
    }
    return true;
}

bool ChildProcess::readAvailable(qsizetype maxLine) {
    char buffer[1 << 16];
    ssize_t count = 0;
    do {
        count = ::read(iFromChild.number(), buffer, sizeof buffer);
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return false;
    iBuffer.append(buffer, count);
    return iBuffer.size() <= maxLine || iBuffer.indexOf('\n', iSearched) >= 0;
}

std::optional<QByteArray> ChildProcess::takeLine() {
    const qsizetype end = iBuffer.indexOf('\n', iSearched);
    iSearched = end < 0 ? iBuffer.size() : 0;
    if (end < 0)
        return std::nullopt;
    QByteArray line = iBuffer.left(end);
    iBuffer.remove(0, end + 1);
    return line;
}

// The kernel closes a process's streams shortly before its exit status becomes available.
bool ChildProcess::exitsSoon() {
    constexpr int patienceMilliseconds = 1000;
    for (int waited = 0; !iHasEnded && waited < patienceMilliseconds; ++waited) {
        if (::waitpid(iProcess, &iStatus, WNOHANG) == iProcess)
            iHasEnded = true;
        else
            ::poll(nullptr, 0, 1);
    }
    return iHasEnded;
}

// Exit codes of the dynamic loader and of shells when a program or one of its libraries is missing
// or unusable.
bool ChildProcess::couldNotRun() {
    constexpr int unfit = 126;
    constexpr int missing = 127;
    return exitsSoon() && WIFEXITED(iStatus) &&
           (WEXITSTATUS(iStatus) == unfit || WEXITSTATUS(iStatus) == missing);
}

bool ChildProcess::wasKilled() {
    return exitsSoon() && WIFSIGNALED(iStatus) && WTERMSIG(iStatus) == SIGKILL;
}

void ChildProcess::kill() {
    if (!iHasEnded)
        ::kill(iProcess, SIGKILL);
}

void ChildProcess::waitForEnd() {
    while (!iHasEnded) {
        const pid_t ended = ::waitpid(iProcess, &iStatus, 0);
        iHasEnded = ended == iProcess || errno != EINTR;
    }
}
