#include "output/StagingFolder.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/CommitSwitch.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"
#include "system/LockedFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

const QString prefix = QStringLiteral(".folvero-publish-");

// A switch takes milliseconds, on a slow disk or share longer.
constexpr std::chrono::seconds longestSwitch{20};

FileDescriptor opened(const QString& folder) {
    return FileDescriptor(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList({prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
}

QString processIn(const QString& name) {
    return name.mid(prefix.size()).section(u'-', 0, 0);
}

// By process ID alone, which may have been reused.
bool isOfDeadProcess(const QString& name) {
    const pid_t process = processIn(name).toInt();
    return process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}

// A folder that was locked once carries the sticky bit.
bool isAbandoned(const FileDescriptor& folder, const QString& name) {
    struct stat info {};
    const QByteArray entry = QFile::encodeName(name);
    const bool wasLocked =
        ::fstatat(folder.number(), entry.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
        (info.st_mode & S_ISVTX) != 0;
    return (wasLocked || isOfDeadProcess(name)) && !LockedFolder::isLocked(folder.number(), entry);
}

[[noreturn]] void fail(const QString& path, const Message& cause) {
    throw PlatformException(ErrorKind::publishing, Message::about(path, cause));
}

// While a process, or its guard, makes the exchange or undoes it.
void waitForSwitch(const FileDescriptor& folder, const QString& inFolder, const QString& name) {
    const auto isSwitching = [&] {
        return CommitSwitch::hasJournal(Files::join(inFolder, name)) &&
               LockedFolder::isLocked(folder.number(), QFile::encodeName(name));
    };
    const auto end = std::chrono::steady_clock::now() + longestSwitch;
    while (isSwitching()) {
        if (std::chrono::steady_clock::now() > end)
            fail(inFolder, Message::ofSystemError(EBUSY).temporary());
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

// Renames a staging folder, so that no later run removes the earlier files in it.
bool rescue(const QString& path) {
    const QFileInfo info(path);
    const QString first =
        Files::join(info.path(), QStringLiteral("folvero-rescued-") + processIn(info.fileName()));
    QString rescued = first;
    for (int number = 2; QFileInfo::exists(rescued); ++number)
        rescued = first + u'-' + QString::number(number);
    const bool isMoved = std::rename(QFile::encodeName(path).constData(),
                                     QFile::encodeName(rescued).constData()) == 0;
    Log("PublishTransaction")
        .error(QStringLiteral("earlier files could not be put back; they are in %1")
                   .arg(isMoved ? rescued : path));
    return isMoved;
}

// Undoes a switch that was never finished, unless all of it was done.
void settle(const FileDescriptor& folder, const QString& staging) {
    const FileDescriptor inside = opened(staging);
    // Some network file systems have no locks; another process may be at it at the same time.
    if (!inside.isOpen() ||
        (::flock(inside.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK))
        return;
    CommitSwitch unfinished(folder.number(), inside.number());
    const bool isSettled =
        unfinished.readJournal(staging) && (unfinished.isDone() || unfinished.undo());
    if ((isSettled && unfinished.removeJournal()) || rescue(staging))
        return;
    fail(staging, Message::translate("FolveroOutput",
                                     "Earlier files of the book are in it and can't be put back"));
}

} // namespace

QString StagingFolder::make(const QString& inFolder) {
    return LockedFolder::make(
        Files::join(inFolder, QStringLiteral("%1%2-XXXXXX").arg(prefix).arg(::getpid())));
}

void StagingFolder::remove(const QString& path) {
    LockedFolder::remove(path);
}

bool StagingFolder::hasUnfinished(const QString& inFolder) {
    const FileDescriptor folder = opened(inFolder);
    const QStringList names = folder.isOpen() ? namesIn(inFolder) : QStringList();
    return std::any_of(names.begin(), names.end(), [&](const QString& name) {
        return CommitSwitch::hasJournal(Files::join(inFolder, name)) && isAbandoned(folder, name);
    });
}

void StagingFolder::removeStale(const QString& inFolder) {
    const FileDescriptor folder = opened(inFolder);
    if (!folder.isOpen())
        return;
    for (const QString& name : namesIn(inFolder)) {
        const QByteArray entry = QFile::encodeName(name);
        waitForSwitch(folder, inFolder, name);
        if (CommitSwitch::hasJournal(Files::join(inFolder, name)) && isAbandoned(folder, name))
            settle(folder, Files::join(inFolder, name));
        if (!isOfDeadProcess(name))
            LockedFolder::removeIfAbandoned(folder.number(), entry, std::nullopt);
        else if (!LockedFolder::isLocked(folder.number(), entry))
            FolderRemoval::removeEntry(folder.number(), entry);
    }
}
