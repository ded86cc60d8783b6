#include "system/LockedFolder.h"

#include "system/FolderRemoval.h"

#include <QFile>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr mode_t permissions = 0777;
constexpr mode_t ownersOnly = 0700;

// The folders that this process has locked.
class HeldLocks {
public:
    void add(const QByteArray& path, FileDescriptor folder) {
        const std::lock_guard lock(iMutex);
        iFolders.emplace(path, std::move(folder));
    }
    void drop(const QByteArray& path) {
        const std::lock_guard lock(iMutex);
        iFolders.erase(path);
    }

    int find(const QByteArray& path) {
        const std::lock_guard lock(iMutex);
        const auto found = iFolders.find(path);
        return found != iFolders.end() ? found->second.number() : -1;
    }

private:
    std::mutex iMutex;
    std::map<QByteArray, FileDescriptor> iFolders;
};

HeldLocks& heldLocks() {
    static HeldLocks all;
    return all;
}

bool lock(const FileDescriptor& folder) {
    return folder.isOpen() && ::flock(folder.number(), LOCK_EX | LOCK_NB) == 0;
}

bool isPrivateFolderOfUser(const struct stat& info) {
    return S_ISDIR(info.st_mode) && info.st_uid == ::geteuid() &&
           (info.st_mode & permissions) == ownersOnly;
}

// Whether the name still refers to the folder that was opened.
bool isEntry(int parent, const QByteArray& name, const struct stat& folder) {
    struct stat info {};
    return ::fstatat(parent, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
           info.st_dev == folder.st_dev && info.st_ino == folder.st_ino;
}

// The sticky bit is set after the lock is held: a folder that has the bit but no lock is abandoned.
// False when another process that cleans up has it.
bool lockAndMark(const QByteArray& path) {
    FileDescriptor folder(::open(path.constData(), openFolderItself));
    struct stat info {};
    if (!lock(folder))
        return errno != EWOULDBLOCK && errno != ENOENT;
    if (::fstat(folder.number(), &info) == 0 && !isEntry(AT_FDCWD, path, info))
        return false;
    if (::fchmod(folder.number(), (info.st_mode & 07777) | S_ISVTX) == 0)
        heldLocks().add(path, std::move(folder));
    return true;
}

bool isOld(const struct stat& info, std::optional<std::chrono::seconds> unlockedFor) {
    return unlockedFor && std::time(nullptr) - info.st_mtime >= unlockedFor->count();
}

} // namespace

QString LockedFolder::make(const QString& path) {
    for (;;) {
        QByteArray name = QFile::encodeName(path);
        if (!::mkdtemp(name.data()))
            return {};
        if (lockAndMark(name))
            return QFile::decodeName(name);
        ::rmdir(name.constData());
    }
}

bool LockedFolder::remove(const QString& path) {
    const bool isGone = FolderRemoval::remove(path);
    heldLocks().drop(QFile::encodeName(path));
    return isGone;
}

void LockedFolder::release(const QString& path) {
    heldLocks().drop(QFile::encodeName(path));
}

int LockedFolder::descriptor(const QString& path) {
    return heldLocks().find(QFile::encodeName(path));
}

FileDescriptor LockedFolder::take(int parent, const QByteArray& name) {
    FileDescriptor folder(::openat(parent, name.constData(), openFolderItself));
    struct stat info {};
    const bool isTaken = folder.isOpen() && (lock(folder) || errno != EWOULDBLOCK) &&
                         ::fstat(folder.number(), &info) == 0 && isEntry(parent, name, info);
    return isTaken ? std::move(folder) : FileDescriptor();
}

bool LockedFolder::isLocked(int parent, const QByteArray& name) {
    const FileDescriptor folder(::openat(parent, name.constData(), openFolderItself));
    return folder.isOpen() && !lock(folder) && errno == EWOULDBLOCK;
}

bool LockedFolder::removeIfAbandoned(int parent, const QByteArray& name,
                                     std::optional<std::chrono::seconds> unlockedFor) {
    const FileDescriptor folder(::openat(parent, name.constData(), openFolderItself));
    struct stat info {};
    if (!folder.isOpen() || ::fstat(folder.number(), &info) != 0 || !isPrivateFolderOfUser(info))
        return false;
    const bool wasLocked = (info.st_mode & S_ISVTX) != 0;
    if (!wasLocked && !isOld(info, unlockedFor))
        return false;
    // Another process that is cleaning up at the same time fails here.
    if (!lock(folder) || !isEntry(parent, name, info))
        return false;
    return FolderRemoval::empty(folder.number()) &&
           ::unlinkat(parent, name.constData(), AT_REMOVEDIR) == 0;
}
