#include "console/PasswordPrompt.h"

#include "console/CommandError.h"
#include "system/FileDescriptor.h"

#include <QScopeGuard>
#include <array>
#include <fcntl.h>
#include <string_view>
#include <termios.h>
#include <unistd.h>

namespace {

void show(int terminal, std::string_view text) {
    // A terminal that is gone shows when reading from it.
    [[maybe_unused]] const ssize_t written = ::write(terminal, text.data(), text.size());
}

} // namespace

QByteArray askForPassword() {
    const FileDescriptor terminal(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC));
    termios usual{};
    if (!terminal.isOpen() || ::tcgetattr(terminal.number(), &usual) != 0)
        throw CommandError(
            QStringLiteral("--password: there is no terminal to ask for it; --password-file and "
                           "FOLVERO_PASSWORD need none"),
            ExitCode::usage);
    // A signal would leave the terminal without echo, so Ctrl-C is read like the end of the line.
    termios silent = usual;
    silent.c_lflag &= ~tcflag_t(ECHO | ISIG);
    silent.c_cc[VEOL] = usual.c_cc[VINTR];
    ::tcsetattr(terminal.number(), TCSAFLUSH, &silent);
    const auto restore = qScopeGuard([&] { ::tcsetattr(terminal.number(), TCSAFLUSH, &usual); });
    show(terminal.number(), "Password: ");
    std::array<char, 4096> line{}; // the longest that terminals give
    const ssize_t size = ::read(terminal.number(), line.data(), line.size());
    show(terminal.number(), "\n");
    if (size <= 0 || line[std::size_t(size) - 1] != '\n')
        throw CommandError(QStringLiteral("cancelled; nothing was made"), ExitCode::cancelled);
    return {line.data(), qsizetype(size) - 1};
}
