#include "support/ChildProcesses.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

std::vector<pid_t> ChildProcesses::running(const QByteArray& service, qint64 program) {
    std::vector<pid_t> found;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(program));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray& child :
             contents(tasks.filePath(task + QStringLiteral("/children"))).split(' ')) {
            const auto words = command(child.toInt());
            if (words.value(0).endsWith("folvero-page-worker") && words.value(1) == service)
                found.push_back(child.toInt());
        }
    }
    return found;
}

QByteArrayList ChildProcesses::command(pid_t process) {
    return contents(QStringLiteral("/proc/%1/cmdline").arg(process)).split('\0');
}
