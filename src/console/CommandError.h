#pragma once

#include "base/Message.h"

#include <QString>
#include <exception>

// Exit codes, documented in docs/command-line.md.
enum class ExitCode : int {
    ok = 0,
    failed = 1,      // nothing was made; the same command will fail again
    usage = 2,       // invalid command line
    incomplete = 3,  // the book was made, but pages are missing
    tryAgain = 75,   // nothing was made; the cause may pass: a full disk, an unmounted share
    cancelled = 130, // cancelled by Ctrl-C, as shells report it; nothing was made
};

// Ends a command with a message on standard error and an exit code.
class CommandError : public std::exception {
public:
    explicit CommandError(QString message, ExitCode code = ExitCode::failed)
        : iMessage(std::move(message)), iCode(code) {}

    // tryAgain if any of the reasons is temporary, failed otherwise.
    explicit CommandError(const Messages& reasons)
        : CommandError(englishTexts(reasons).join(u'\n'),
                       areTemporary(reasons) ? ExitCode::tryAgain : ExitCode::failed) {}

    const QString& message() const { return iMessage; }
    ExitCode code() const { return iCode; }
    const char* what() const noexcept override { return "command failed"; }

private:
    QString iMessage;
    ExitCode iCode;
};
