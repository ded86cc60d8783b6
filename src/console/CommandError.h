#pragma once

#include "base/Message.h"
#include "base/PlatformException.h"
#include "console/ExitCode.h"

#include <QString>
#include <exception>

// Ends a command with a message on standard error and an exit code.
class CommandError : public std::exception {
public:
    explicit CommandError(QString message, ExitCode code = ExitCode::failed)
        : iMessage(std::move(message)), iCode(code) {}

    // The code is tryAgain if any of the reasons is temporary.
    explicit CommandError(const Messages& reasons, ExitCode code = ExitCode::failed)
        : CommandError(englishTexts(reasons).join(u'\n'),
                       areTemporary(reasons) ? ExitCode::tryAgain : code) {}

    explicit CommandError(const PlatformException& failure)
        : CommandError({failure.message()}, exitCodeFor(failure.kind())) {}

    // The same for whatever ended a command.
    static CommandError from(const std::exception& failure);

    const QString& message() const { return iMessage; }
    ExitCode code() const { return iCode; }
    const char* what() const noexcept override { return "command failed"; }

private:
    QString iMessage;
    ExitCode iCode;
};
