#include "support/Program.h"

#include <QFile>
#include <array>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// What "folvero info --password" prints on a terminal where that is typed, and its exit code.
Program::Result whenTyped(const QByteArray& typed) {
    const QByteArray program = QFile::encodeName(Program::path());
    const QByteArray document = QFile::encodeName(Program::sample("encrypted.pdf"));
    int terminal = -1;
    const pid_t process = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (process == 0) {
        ::execl(program.constData(), "folvero", "info", "--password", document.constData(),
                nullptr);
        ::_exit(127);
    }
    Program::Result result;
    std::array<char, 256> bytes{};
    for (ssize_t size = 0; (size = ::read(terminal, bytes.data(), bytes.size())) > 0;) {
        result.output.append(bytes.data(), size);
        if (result.output == "Password: ") {
            EXPECT_EQ(::write(terminal, typed.constData(), std::size_t(typed.size())),
                      typed.size());
        }
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    ::close(terminal);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace

TEST(Password, IsAskedForWithoutBeingShown) {
    const auto opened = whenTyped("secreT\x7ft\n");
    EXPECT_EQ(opened.exitCode, 0);
    EXPECT_TRUE(opened.output.startsWith("Password: \r\nTitle: ")) << opened.output.constData();
    for (const char* cancelling : {"secret\x03", "\x04"}) {
        const auto cancelled = whenTyped(cancelling);
        EXPECT_EQ(cancelled.exitCode, 130);
        EXPECT_EQ(cancelled.output, "Password: \r\nfolvero: cancelled; nothing was made\r\n");
    }
    EXPECT_EQ(whenTyped("wrong\n").exitCode, 77);
}
