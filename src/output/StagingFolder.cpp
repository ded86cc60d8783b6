#include "output/StagingFolder.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/CommitSwitch.h"
#include "output/RetiredEdition.h"
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
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

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

// Unless it is locked. A folder that was locked once carries the sticky bit.
bool isOfEndedProcess(const FileDescriptor& folder, const QString& name) {
    struct stat info {};
    const QByteArray entry = QFile::encodeName(name);
    const bool wasLocked =
        ::fstatat(folder.number(), entry.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
        (info.st_mode & S_ISVTX) != 0;
    return wasLocked || isOfDeadProcess(name);
}

[[noreturn]] void fail(const QString& path, const Message& cause) {
    throw PlatformException(ErrorKind::publishing, Message::about(path, cause));
}

// Locks a staging folder whose process is gone, so that no two processes end it. Waits while a
// process, its guard or another one that ends it is changing the folder. Not open when there is
// nothing to do.
FileDescriptor takeOver(const FileDescriptor& folder, const QString& inFolder,
                        const QString& name) {
    const auto end = std::chrono::steady_clock::now() + longestSwitch;
    for (;;) {
        FileDescriptor held = LockedFolder::take(folder.number(), QFile::encodeName(name));
        if (held.isOpen() || !CommitSwitch::hasJournal(Files::join(inFolder, name)))
            return isOfEndedProcess(folder, name) ? std::move(held) : FileDescriptor();
        if (std::chrono::steady_clock::now() > end)
            fail(inFolder, Message::ofSystemError(EBUSY).temporary());
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

// Undoes a switch that was never finished, unless all of it was done.
bool settle(const FileDescriptor& folder, const FileDescriptor& inside, const QString& staging) {
    CommitSwitch unfinished(folder.number(), inside.number());
    if (!unfinished.readJournal(staging))
        return !CommitSwitch::hasJournal(staging); // without locks, somebody else may be faster
    return (unfinished.isDone() || unfinished.undo()) && unfinished.removeJournal();
}

// Deletes the edition out of use. False when there are files of others that have no other place.
bool retire(const FileDescriptor& folder, const FileDescriptor& inside, const QString& staging) {
    RetiredEdition retired(folder.number(), inside.number());
    return !retired.read(staging) || retired.remove().isEmpty();
}

// A folder of a process with the number of one that lives again is removed only if it is this
// user's own.
bool mayRemove(const FileDescriptor& inside, const QString& name) {
    struct stat info {};
    return isOfDeadProcess(name) || (::fstat(inside.number(), &info) == 0 &&
                                     info.st_uid == ::geteuid() && (info.st_mode & 0777) == 0700);
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
        return CommitSwitch::hasJournal(Files::join(inFolder, name)) &&
               isOfEndedProcess(folder, name) &&
               !LockedFolder::isLocked(folder.number(), QFile::encodeName(name));
    });
}

void StagingFolder::removeStale(const QString& inFolder) {
    const FileDescriptor folder = opened(inFolder);
    if (!folder.isOpen())
        return;
    for (const QString& name : namesIn(inFolder)) {
        const FileDescriptor inside = takeOver(folder, inFolder, name);
        if (!inside.isOpen())
            continue;
        const QString staging = Files::join(inFolder, name);
        const bool isSettled =
            !CommitSwitch::hasJournal(staging) || settle(folder, inside, staging);
        if (!isSettled && !rescue(staging))
            fail(staging,
                 Message::translate("FolveroOutput",
                                    "Earlier files of the book are in it and can't be put back"));
        if (!isSettled || !mayRemove(inside, name))
            continue;
        if (retire(folder, inside, staging))
            FolderRemoval::removeEntry(folder.number(), QFile::encodeName(name));
        else
            rescue(staging);
    }
}

// No later run removes the files in it.
bool StagingFolder::rescue(const QString& path) {
    const QFileInfo info(path);
    const QString first =
        Files::join(info.path(), QStringLiteral("folvero-rescued-") + processIn(info.fileName()));
    QString rescued = first;
    for (int number = 2; QFileInfo::exists(rescued); ++number)
        rescued = first + u'-' + QString::number(number);
    const bool isMoved = std::rename(QFile::encodeName(path).constData(),
                                     QFile::encodeName(rescued).constData()) == 0;
    Log("PublishTransaction")
        .error(QStringLiteral("files could not be put back; they are in %1")
                   .arg(isMoved ? rescued : path));
    return isMoved;
}
