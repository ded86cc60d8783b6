#include "output/StagingFolder.h"

#include "platform/ClaimedFolder.h"
#include "platform/Descriptor.h"
#include "platform/Files.h"
#include "platform/FolderRemoval.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

const QString prefix = QStringLiteral(".folvero-publish-");

// By its number alone, which another process may have got since.
bool isGone(pid_t process) {
    return process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}

} // namespace

QString StagingFolder::make(const QString& inFolder) {
    return ClaimedFolder::make(
        Files::join(inFolder, QStringLiteral("%1%2-XXXXXX").arg(prefix).arg(::getpid())));
}

void StagingFolder::remove(const QString& path) {
    ClaimedFolder::remove(path);
}

void StagingFolder::removeStale(const QString& inFolder) {
    const Descriptor folder(
        ::open(QFile::encodeName(inFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return;
    const auto names =
        QDir(inFolder).entryList({prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const QByteArray entry = QFile::encodeName(name);
        if (!isGone(name.mid(prefix.size()).section(u'-', 0, 0).toInt()))
            ClaimedFolder::removeIfAbandoned(folder.number(), entry, std::nullopt);
        else if (!ClaimedFolder::isClaimed(folder.number(), entry))
            FolderRemoval::removeEntry(folder.number(), entry);
    }
}
