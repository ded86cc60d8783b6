#include "library/ProcessIdentity.h"

#include <QFile>
#include <QSysInfo>
#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace {

const QString hostKey = QStringLiteral("host");
const QString bootKey = QStringLiteral("boot");
const QString processKey = QStringLiteral("process");
const QString startedKey = QStringLiteral("started");

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Process numbers mean the same only in one namespace.
QString bootID() {
    const QByteArray id = contents(QStringLiteral("/proc/sys/kernel/random/boot_id")).trimmed();
    return QString::fromLatin1(id) + u' ' +
           QFile::symLinkTarget(QStringLiteral("/proc/self/ns/pid")).section(u'/', -1);
}

// Null when there is no such process.
QString startOf(int process) {
    const QByteArray stat = contents(QStringLiteral("/proc/%1/stat").arg(process));
    // The name, in parentheses, may have any letters.
    constexpr int startField = 19; // of those after the name, from 0
    const auto fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.size() > startField ? QString::fromLatin1(fields[startField]) : QString();
}

} // namespace

ProcessIdentity ProcessIdentity::own() {
    const int process = ::getpid();
    return {QSysInfo::machineHostName(), bootID(), process, startOf(process)};
}

bool ProcessIdentity::hasEnded() const {
    if (host != QSysInfo::machineHostName() || boot != bootID())
        return false;
    const QString start = startOf(process);
    // The system may hide processes of other users.
    return start.isEmpty() ? ::kill(process, 0) != 0 && errno == ESRCH : start != started;
}

QJsonObject ProcessIdentity::asJson() const {
    return {{hostKey, host}, {bootKey, boot}, {processKey, process}, {startedKey, started}};
}

ProcessIdentity ProcessIdentity::fromJson(const QJsonObject& object) {
    return {object[hostKey].toString(), object[bootKey].toString(), object[processKey].toInt(),
            object[startedKey].toString()};
}
