#include "cli/PasswordOptions.h"

#include "console/CommandError.h"
#include "console/PasswordPrompt.h"

#include <QFile>

namespace {

constexpr char variable[] = "FOLVERO_PASSWORD";

// The file may be a pipe. Editors may have added a byte order mark.
QByteArray firstLineOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(
            QStringLiteral("%1: the password can't be read (%2)").arg(path, file.errorString()));
    constexpr qint64 longest = 4096;
    QByteArray line = file.readLine(longest);
    if (line.startsWith("\xEF\xBB\xBF"))
        line.remove(0, 3);
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty())
        throw CommandError(QStringLiteral("%1: has no password in its first line").arg(path),
                           ExitCode::noPassword);
    return line;
}

} // namespace

void PasswordOptions::takeEnvironment() {
    environment = qgetenv(variable);
    qunsetenv(variable);
}

void PasswordOptions::giveEnvironment() const {
    if (!environment.isEmpty())
        ::qputenv(variable, environment);
}

QByteArray PasswordOptions::password() const {
    if (ask && !file.isNull())
        throw CommandError(QStringLiteral("--password and --password-file exclude each other"),
                           ExitCode::usage);
    if (!iPassword)
        iPassword = ask ? askForPassword() : file.isNull() ? environment : firstLineOf(file);
    return *iPassword;
}
