#include "system/FolderCopy.h"

#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"

#include <QByteArrayList>
#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

// Some file systems give all files one mode, and refuse to set it.
bool setMode(int file, mode_t mode) {
    struct stat made {};
    return ::fstat(file, &made) == 0 &&
           ((made.st_mode & 07777) == mode || ::fchmod(file, mode) == 0);
}

// Only root may give files away.
bool copyOwner(const struct stat& info, int to) {
    struct stat made {};
    return ::fstat(to, &made) == 0 && ((info.st_uid == made.st_uid && info.st_gid == made.st_gid) ||
                                       ::fchown(to, info.st_uid, info.st_gid) == 0);
}

// The names of a file's extended attributes; none where there are no such.
QByteArrayList attributesOf(int file) {
    QByteArray names(std::max<ssize_t>(::flistxattr(file, nullptr, 0), 0), '\0');
    names.truncate(
        std::max<ssize_t>(::flistxattr(file, names.data(), std::size_t(names.size())), 0));
    QByteArrayList list = names.split('\0');
    list.removeAll("");
    return list;
}

bool isAccessList(const QByteArray& name) {
    return name.startsWith("system.posix_acl_");
}

// Others are the system's own, such as labels.
bool isOfUser(const QByteArray& name) {
    return name.startsWith("user.") || isAccessList(name);
}

bool copyAttribute(int from, int to, const char* name) {
    QByteArray value(std::max<ssize_t>(::fgetxattr(from, name, nullptr, 0), 0), '\0');
    return ::fgetxattr(from, name, value.data(), std::size_t(value.size())) == value.size() &&
           ::fsetxattr(to, name, value.constData(), std::size_t(value.size()), 0) == 0;
}

bool copyAttributes(int from, int to) {
    const QByteArrayList names = attributesOf(from);
    for (const QByteArray& inherited : attributesOf(to)) {
        if (isAccessList(inherited) && !names.contains(inherited))
            (void)::fremovexattr(to, inherited.constData());
    }
    return std::all_of(names.begin(), names.end(), [&](const QByteArray& name) {
        return copyAttribute(from, to, name.constData()) || !isOfUser(name);
    });
}

// All but the owner; last, since it may forbid further changes.
bool copyMetadata(int from, int to, const struct stat& info) {
    if (!copyAttributes(from, to) || !setMode(to, info.st_mode & 07777))
        return false;
    const std::array<timespec, 2> times{info.st_atim, info.st_mtim};
    (void)::futimens(to, times.data()); // some file systems refuse it
    return true;
}

bool copyRegular(int from, int to, const char* name, const struct stat& info) {
    const FileDescriptor source(::openat(from, name, O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    FileDescriptor target(::openat(to, name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    return source.isOpen() && target.isOpen() && copyOwner(info, target.number()) &&
           Files::copyContents(source.number(), target.number()) &&
           copyMetadata(source.number(), target.number(), info) && target.close();
}

bool copySymlink(int from, int to, const char* name, const struct stat& info) {
    std::array<char, PATH_MAX> target{};
    struct stat made {};
    return ::readlinkat(from, name, target.data(), target.size() - 1) >= 0 &&
           ::symlinkat(target.data(), to, name) == 0 &&
           ::fstatat(to, name, &made, AT_SYMLINK_NOFOLLOW) == 0 &&
           ((made.st_uid == info.st_uid && made.st_gid == info.st_gid) ||
            ::fchownat(to, name, info.st_uid, info.st_gid, AT_SYMLINK_NOFOLLOW) == 0);
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
        return copySymlink(from, to, name, info);
    errno = cause;
    return false;
}

class Copier {
public:
    Copier(dev_t device, const FolderCopy::IsLeftOut& isLeftOut)
        : iDevice(device), iIsLeftOut(isLeftOut) {}

    // False with iPath at the entry and the cause in errno.
    bool copy(int from, int to) {
        struct stat info {};
        if (::fstat(from, &info) != 0 || !copyOwner(info, to))
            return false;
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
        return copyMetadata(from, to, info);
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
        return target.isOpen() && copy(source.number(), target.number());
    }

    dev_t iDevice;
    const FolderCopy::IsLeftOut& iIsLeftOut;
    QByteArray iPath;
};

} // namespace

std::optional<FolderCopy::Failure> FolderCopy::link(int from, int to, const IsLeftOut& isLeftOut) {
    struct stat info {};
    const bool isThere = ::fstat(from, &info) == 0;
    Copier copier(info.st_dev, isLeftOut);
    if (isThere && copier.copy(from, to))
        return {};
    return Failure{copier.path(), Message::ofLastSystemError()};
}
