#include "support/ChildProcesses.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

std::vector<pid_t> ChildProcesses::of(qint64 program) {
    std::vector<pid_t> found;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(program));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray& child :
             contents(tasks.filePath(task + QStringLiteral("/children"))).split(' ')) {
            if (child.toInt() > 0)
                found.push_back(child.toInt());
        }
    }
    return found;
}

std::vector<pid_t> ChildProcesses::running(const QByteArray& service, qint64 program) {
    std::vector<pid_t> found = of(program);
    std::erase_if(found, [&service](pid_t child) {
        const auto words = command(child);
        return !words.value(0).endsWith("folvero-page-worker") || words.value(1) != service;
    });
    return found;
}

QByteArrayList ChildProcesses::command(pid_t process) {
    return contents(QStringLiteral("/proc/%1/cmdline").arg(process)).split('\0');
}
