#include "system/FolderCopy.h"

#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int openFolderItself = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// Some file systems give all files one mode, and refuse to set it.
bool setMode(int file, mode_t mode) {
    struct stat made {};
    return ::fstat(file, &made) == 0 &&
           ((made.st_mode & 07777) == mode || ::fchmod(file, mode) == 0);
}

bool copyRegular(int from, int to, const char* name, const struct stat& info) {
    const FileDescriptor source(::openat(from, name, O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    FileDescriptor target(
        ::openat(to, name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, info.st_mode & 0777));
    const std::array<timespec, 2> times{info.st_atim, info.st_mtim};
    const bool isDone = source.isOpen() && target.isOpen() &&
                        Files::copyContents(source.number(), target.number()) &&
                        setMode(target.number(), info.st_mode & 0777);
    if (isDone)
        (void)::futimens(target.number(), times.data()); // some file systems refuse it
    return isDone && target.close();
}

bool copySymlink(int from, int to, const char* name) {
    std::array<char, PATH_MAX> target{};
    return ::readlinkat(from, name, target.data(), target.size() - 1) >= 0 &&
           ::symlinkat(target.data(), to, name) == 0;
}

// Systems may refuse hard links to files of other users, and some file systems have none.
bool linkOrCopy(int from, int to, const char* name) {
    if (::linkat(from, name, to, name, 0) == 0)
        return true;
    const int cause = errno;
    struct stat info {};
    if (::fstatat(from, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    if (S_ISREG(info.st_mode))
        return copyRegular(from, to, name, info);
    if (S_ISLNK(info.st_mode))
        return copySymlink(from, to, name);
    errno = cause;
    return false;
}

class Copier {
public:
    Copier(dev_t device, const FolderCopy::IsLeftOut& isLeftOut)
        : iDevice(device), iIsLeftOut(isLeftOut) {}

    // False with iPath at the entry and the cause in errno.
    bool copy(int from, int to) {
        const auto names = FolderRemoval::namesIn(from);
        if (!names)
            return false;
        for (const QByteArray& name : *names) {
            const qsizetype length = iPath.size();
            if (length > 0)
                iPath += '/';
            iPath += name;
            if (!copyEntry(from, to, name.constData()))
                return false;
            iPath.truncate(length);
        }
        return true;
    }
    const QByteArray& path() const { return iPath; }

private:
    bool copyEntry(int from, int to, const char* name) {
        struct stat info {};
        if (::fstatat(from, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
            return false;
        if (iIsLeftOut(iPath, info.st_mode & S_IFMT))
            return true;
        return S_ISDIR(info.st_mode) ? copyFolder(from, to, name, info.st_dev)
                                     : linkOrCopy(from, to, name);
    }

    bool copyFolder(int from, int to, const char* name, dev_t device) {
        if (device != iDevice) {
            errno = EXDEV;
            return false;
        }
        const FileDescriptor source(::openat(from, name, openFolderItself));
        if (!source.isOpen() || ::mkdirat(to, name, 0700) != 0)
            return false;
        const FileDescriptor target(::openat(to, name, openFolderItself));
        return target.isOpen() && copy(source.number(), target.number()) &&
               FolderCopy::copyAttributes(source.number(), target.number());
    }

    dev_t iDevice;
    const FolderCopy::IsLeftOut& iIsLeftOut;
    QByteArray iPath;
};

} // namespace

bool FolderCopy::copyAttributes(int from, int to) {
    struct stat info {};
    struct stat made {};
    if (::fstat(from, &info) != 0 || ::fstat(to, &made) != 0)
        return false;
    // Only root may give folders away; others keep at least the group, if they are in it.
    if ((info.st_uid != made.st_uid || info.st_gid != made.st_gid) &&
        ::fchown(to, info.st_uid, info.st_gid) != 0)
        (void)(::fchown(to, uid_t(-1), info.st_gid) == 0);
    return setMode(to, info.st_mode & 07777);
}

std::optional<FolderCopy::Failure> FolderCopy::link(int from, int to, const IsLeftOut& isLeftOut) {
    struct stat info {};
    const bool isThere = ::fstat(from, &info) == 0;
    Copier copier(info.st_dev, isLeftOut);
    if (isThere && copier.copy(from, to))
        return {};
    return Failure{copier.path(), Message::ofLastSystemError()};
}
