#include "system/PartFile.h"

#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

// What a link leads to.
QString targetOf(const QString& path) {
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

QByteArray partOf(const QString& path) {
    const QFileInfo file(path);
    return QFile::encodeName(
        Files::join(file.path(), QStringLiteral(".%1.part").arg(file.fileName())));
}

// Locked for as long as it is open; not open where that fails, as where another program has it.
FileDescriptor take(const QByteArray& part, int flags) {
    FileDescriptor file(::open(part.constData(), flags | O_NOFOLLOW | O_CLOEXEC, 0666));
    struct stat opened {};
    struct stat named {};
    const bool isTaken = file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 &&
                         ::fstat(file.number(), &opened) == 0 && S_ISREG(opened.st_mode) &&
                         ::lstat(part.constData(), &named) == 0 && opened.st_ino == named.st_ino;
    return isTaken ? std::move(file) : FileDescriptor();
}

bool writeAll(int to, const QByteArray& data) {
    for (qsizetype done = 0; done < data.size();) {
        const ssize_t written =
            ::write(to, data.constData() + done, std::size_t(data.size() - done));
        if (written < 0 && errno != EINTR)
            return false;
        done += std::max<ssize_t>(written, 0);
    }
    return true;
}

} // namespace

bool PartFile::write(const QString& path, const QByteArray& data, Message* error) {
    const QString target = targetOf(path);
    const QByteArray part = partOf(target);
    const FileDescriptor file = take(part, O_WRONLY | O_CREAT);
    if (!file.isOpen())
        return Files::writeAtomically(path, data, error);
    const QByteArray name = QFile::encodeName(target);
    struct stat earlier {};
    if (::stat(name.constData(), &earlier) == 0)
        ::fchmod(file.number(), earlier.st_mode & ALLPERMS);
    if (::ftruncate(file.number(), 0) == 0 && writeAll(file.number(), data) &&
        ::fsync(file.number()) == 0 && ::rename(part.constData(), name.constData()) == 0)
        return true;
    *error = Message::ofLastSystemError();
    ::unlink(part.constData());
    return false;
}

void PartFile::removeRemains(const QString& path) {
    const QByteArray part = partOf(targetOf(path));
    if (const auto file = take(part, O_RDONLY | O_NONBLOCK); file.isOpen())
        ::unlink(part.constData());
}
