#pragma once

#include "platform/Message.h"

#include <QString>
#include <exception>

// What the program's exit code tells a script. Documented in docs/command-line.md.
enum class ExitCode : int {
    ok = 0,
    failed = 1,     // nothing was made, and the same command fails again
    usage = 2,      // the command line was not understood
    incomplete = 3, // the book was made, but pages are missing from it
    tryAgain = 75, // nothing was made, for a cause that may pass: a full disk, a share that is gone
    cancelled = 130, // ended by Ctrl-C, as a shell reports it; nothing was made
};

// Ends a command: the message goes to standard error, the code to the caller of the program.
class CommandError : public std::exception {
public:
    explicit CommandError(QString message, ExitCode code = ExitCode::failed)
        : iMessage(std::move(message)), iCode(code) {}

    // tryAgain or failed, as the reasons are.
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
