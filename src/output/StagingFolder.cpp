#include "output/StagingFolder.h"

#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"
#include "system/LockedFolder.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

const QString prefix = QStringLiteral(".folvero-publish-");

FileDescriptor opened(const QString& folder) {
    return FileDescriptor(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList({prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
}

// By process ID alone, which may have been reused.
bool isOfDeadProcess(const QString& name) {
    const pid_t process = name.mid(prefix.size()).section(u'-', 0, 0).toInt();
    return process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}

} // namespace

QString StagingFolder::make(const QString& inFolder) {
    return LockedFolder::make(
        Files::join(inFolder, QStringLiteral("%1%2-XXXXXX").arg(prefix).arg(::getpid())));
}

void StagingFolder::remove(const QString& path) {
    LockedFolder::remove(path);
}

bool StagingFolder::hasStale(const QString& inFolder) {
    const FileDescriptor folder = opened(inFolder);
    const QStringList names = folder.isOpen() ? namesIn(inFolder) : QStringList();
    return std::any_of(names.begin(), names.end(), [&folder](const QString& name) {
        return isOfDeadProcess(name) &&
               !LockedFolder::isLocked(folder.number(), QFile::encodeName(name));
    });
}

void StagingFolder::removeStale(const QString& inFolder) {
    const FileDescriptor folder = opened(inFolder);
    if (!folder.isOpen())
        return;
    for (const QString& name : namesIn(inFolder)) {
        const QByteArray entry = QFile::encodeName(name);
        if (!isOfDeadProcess(name))
            LockedFolder::removeIfAbandoned(folder.number(), entry, std::nullopt);
        else if (!LockedFolder::isLocked(folder.number(), entry))
            FolderRemoval::removeEntry(folder.number(), entry);
    }
}
