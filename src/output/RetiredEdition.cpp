#include "output/RetiredEdition.h"

#include "output/CommitSwitch.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderRemoval.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Other programs may put files into a folder as often as it was emptied.
constexpr int attempts = 5;

QString listIn(const QString& staging) {
    return Files::join(staging, QStringLiteral("listed"));
}

bool look(int folder, const char* name, struct stat* info) {
    return ::fstatat(folder, name, info, AT_SYMLINK_NOFOLLOW) == 0;
}

QByteArray joined(const QByteArray& path, const QByteArray& name) {
    return path.isEmpty() ? name : path + '/' + name;
}

} // namespace

RetiredEdition::State RetiredEdition::stateOf(const struct stat& info) {
    if (S_ISDIR(info.st_mode))
        return {info.st_ino, 0, 0};
    return {info.st_ino, info.st_size,
            info.st_mtim.tv_sec * qint64{1'000'000'000} + info.st_mtim.tv_nsec};
}

void RetiredEdition::list(int root, const QByteArray& path) {
    struct stat info {};
    if (!look(root, path.constData(), &info))
        return;
    iListed.insert(path, stateOf(info));
    if (S_ISDIR(info.st_mode))
        listFolder(root, path.constData(), path);
}

void RetiredEdition::listFolder(int parent, const char* name, const QByteArray& path) {
    const FileDescriptor folder(::openat(parent, name, openFolderItself));
    const auto names = FolderRemoval::namesIn(folder.number());
    for (const QByteArray& each : names.value_or(std::vector<QByteArray>())) {
        struct stat info {};
        if (!look(folder.number(), each.constData(), &info))
            continue;
        iListed.insert(joined(path, each), stateOf(info));
        if (S_ISDIR(info.st_mode))
            listFolder(folder.number(), each.constData(), joined(path, each));
    }
}

// A line for each file and folder.
bool RetiredEdition::write(const QString& staging, Message* error) const {
    QByteArray text;
    for (auto each = iListed.begin(); each != iListed.end(); ++each) {
        for (const qint64 number : {qint64(each->inode), each->size, each->written})
            text += QByteArray::number(number) + ' ';
        text += each.key().toPercentEncoding("/") + '\n';
    }
    return Files::writeWorkingFile(
        listIn(staging),
        {reinterpret_cast<const unsigned char*>(text.constData()), std::size_t(text.size())},
        error);
}

bool RetiredEdition::read(const QString& staging) {
    const QByteArray text = Files::contents(listIn(staging));
    for (const QByteArray& line : text.split('\n')) {
        const QByteArrayList parts = line.split(' ');
        if (parts.size() == 4)
            iListed.insert(
                QByteArray::fromPercentEncoding(parts[3]),
                {quint64(parts[0].toLongLong()), parts[1].toLongLong(), parts[2].toLongLong()});
    }
    return !text.isNull();
}

QByteArrayList RetiredEdition::visit(bool deletes) {
    iDeletes = deletes;
    iLeft.clear();
    struct stat info {};
    if (::fstat(iStaging, &info) == 0)
        iDevice = info.st_dev;
    for (const char* place : CommitSwitch::places) {
        const FileDescriptor retired(::openat(iStaging, place, openFolderItself));
        if (retired.isOpen())
            visitFolder(retired.number(), iFolder, {});
    }
    return iLeft;
}

// The folder to move files to is -1 when there is none.
void RetiredEdition::visitFolder(int from, int to, const QByteArray& path) {
    const auto names = FolderRemoval::namesIn(from);
    if (!names)
        iLeft << path;
    for (const QByteArray& name : names.value_or(std::vector<QByteArray>()))
        visitEntry(from, to, name, joined(path, name));
}

void RetiredEdition::visitEntry(int from, int to, const QByteArray& name, const QByteArray& path) {
    struct stat retired {};
    struct stat there {};
    if (!look(from, name.constData(), &retired))
        return;
    const bool isTaken = to >= 0 && look(to, name.constData(), &there);
    const bool isListed = iListed.contains(path, stateOf(retired));
    const bool isFolder = S_ISDIR(retired.st_mode);
    if (isFolder && retired.st_dev != iDevice)
        return;
    if (isFolder && (isListed || (isTaken && S_ISDIR(there.st_mode)))) {
        if (!visitSubfolder(from, isTaken ? to : -1, name, path))
            iLeft << path;
        return;
    }
    const bool isSame = isTaken && retired.st_dev == there.st_dev && retired.st_ino == there.st_ino;
    if (!isFolder && (isListed || isSame)) {
        if (iDeletes)
            ::unlinkat(from, name.constData(), 0);
    } else if (to < 0 || isTaken || !CommitSwitch::moveIn(from, to, name.constData())) {
        iLeft << path;
    }
}

// False when it can't be removed since it is never empty.
bool RetiredEdition::visitSubfolder(int from, int to, const QByteArray& name,
                                    const QByteArray& path) {
    const FileDescriptor inner(::openat(from, name.constData(), openFolderItself));
    const FileDescriptor target(to < 0 ? -1 : ::openat(to, name.constData(), openFolderItself));
    if (iDeletes)
        FolderRemoval::allowChanges(inner.number());
    for (int i = 0; i < attempts; ++i) {
        const qsizetype before = iLeft.size();
        visitFolder(inner.number(), target.number(), path);
        // What can't be deleted can stay: it is the commit's own.
        if (!iDeletes || iLeft.size() > before ||
            ::unlinkat(from, name.constData(), AT_REMOVEDIR) == 0 || errno != ENOTEMPTY)
            return true;
    }
    return false;
}
