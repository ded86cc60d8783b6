#include "system/FolderRemoval.h"

#include "system/FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace {

bool isOnDevice(int folder, dev_t device) {
    struct stat info {};
    return ::fstat(folder, &info) == 0 && info.st_dev == device;
}

bool emptyOnDevice(int folder, dev_t device);

bool removeOnDevice(int folder, const QByteArray& name, dev_t device) {
    if (::unlinkat(folder, name.constData(), 0) == 0)
        return true;
    const FileDescriptor inner(::openat(folder, name.constData(), openFolderItself));
    if (!inner.isOpen() || !isOnDevice(inner.number(), device))
        return false;
    FolderRemoval::allowChanges(inner.number());
    return emptyOnDevice(inner.number(), device) &&
           ::unlinkat(folder, name.constData(), AT_REMOVEDIR) == 0;
}

bool emptyOnDevice(int folder, dev_t device) {
    const auto names = FolderRemoval::namesIn(folder);
    bool isEmpty = names.has_value();
    for (const QByteArray& name : names.value_or(std::vector<QByteArray>()))
        isEmpty = removeOnDevice(folder, name, device) && isEmpty;
    return isEmpty;
}

} // namespace

bool FolderRemoval::remove(const QString& path) {
    const QString clean = QDir::cleanPath(path);
    const QString parent = clean.contains(u'/') ? clean.section(u'/', 0, -2) + u'/' : QString();
    const FileDescriptor folder(
        ::open(parent.isEmpty() ? "." : QFile::encodeName(parent).constData(),
               O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() &&
           removeEntry(folder.number(), QFile::encodeName(clean.section(u'/', -1)));
}

bool FolderRemoval::removeEntry(int folder, const QByteArray& name) {
    struct stat info {};
    return ::fstat(folder, &info) == 0 && removeOnDevice(folder, name, info.st_dev);
}

bool FolderRemoval::empty(int folder) {
    struct stat info {};
    return ::fstat(folder, &info) == 0 && emptyOnDevice(folder, info.st_dev);
}

void FolderRemoval::allowChanges(int folder) {
    struct stat info {};
    if (::fstat(folder, &info) == 0 && (info.st_mode & S_IRWXU) != S_IRWXU)
        (void)(::fchmod(folder, (info.st_mode & 07777) | S_IRWXU) == 0);
}

// Reads all names before removing any: what readdir() returns when entries are removed meanwhile
// depends on the file system.
std::optional<std::vector<QByteArray>> FolderRemoval::namesIn(int folder) {
    std::vector<QByteArray> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> list(
        ::fdopendir(::openat(folder, ".", openFolderItself)), ::closedir);
    if (!list)
        return {};
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(list.get());
        if (!entry && errno != 0)
            return {};
        if (!entry)
            return names;
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..")
            names.push_back(name);
    }
}
