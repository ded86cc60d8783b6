#include "system/Files.h"

#include "system/FileDescriptor.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool fail(Message* error) {
    if (error)
        *error = Message::ofLastSystemError();
    return false;
}

bool writeAll(int to, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    for (std::size_t done = 0; done < size;) {
        const ssize_t written = ::write(to, bytes + done, size - done);
        if (written < 0 && errno != EINTR)
            return false;
        done += std::size_t(std::max<ssize_t>(written, 0));
    }
    return true;
}

// The old name may remain. Hard links work on network file systems, the other way also on those
// without links.
bool moveToFreeName(const char* from, const char* to) {
    return ::link(from, to) == 0 ||
           (errno != EEXIST && ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0);
}

} // namespace

QByteArray Files::contents(const QString& path, Message* error) {
    errno = 0;
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    if (isOpen && file.error() == QFile::NoError)
        return bytes;
    if (error)
        *error = errno ? Message::ofLastSystemError() : Message(file.errorString());
    return {};
}

QByteArray Files::beginning(const QString& path, qint64 mostBytes) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(mostBytes) : QByteArray();
}

bool Files::writeAtomically(const QString& path, const QByteArray& data, Message* error) {
    errno = 0;
    QSaveFile file(path);
    // commit() flushes too, but ignores errors.
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.flush() &&
        file.commit())
        return true;
    // Qt's own error text is available in the window's language only.
    if (error)
        *error = errno ? Message::ofLastSystemError() : Message(file.errorString());
    return false;
}

bool Files::writeNew(const QString& path, const QByteArray& data, Message* error) {
    struct stat there {};
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &there) == 0) {
        errno = EEXIST;
        return fail(error);
    }
    const qsizetype start = name.lastIndexOf('/') + 1;
    const QByteArray part = name.left(start) + '.' + name.mid(start) + '.' +
                            QUuid::createUuid().toByteArray(QUuid::Id128);
    FileDescriptor file(::open(part.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen())
        return fail(error);
    const bool isDone = writeAll(file.number(), data.constData(), std::size_t(data.size())) &&
                        ::fsync(file.number()) == 0 && file.close() &&
                        moveToFreeName(part.constData(), name.constData());
    const bool result = isDone || fail(error);
    ::unlink(part.constData());
    return result;
}

bool Files::writeWorkingFile(const QString& path, std::span<const unsigned char> data,
                             Message* error) {
    return replace(QFile::encodeName(path), QFile::encodeName(temporaryPath(path)), data, error);
}

bool Files::replace(const QByteArray& name, const QByteArray& part,
                    std::span<const unsigned char> data, Message* error) {
    FileDescriptor file(::open(part.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!file.isOpen())
        return fail(error);
    if (writeAll(file.number(), data.data(), data.size()) && file.close() &&
        ::rename(part.constData(), name.constData()) == 0)
        return true;
    const bool result = fail(error);
    ::unlink(part.constData());
    return result;
}

QString Files::temporaryPath(const QString& path) {
    return path + QStringLiteral(".part");
}

bool Files::copy(const QString& source, const QString& target, Message* error) {
    const FileDescriptor from(::open(QFile::encodeName(source).constData(), O_RDONLY | O_CLOEXEC));
    if (!from.isOpen())
        return fail(error);
    const QByteArray name = QFile::encodeName(target);
    FileDescriptor to(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!to.isOpen())
        return fail(error);
    if (copyContents(from.number(), to.number()) && to.close())
        return true;
    const bool result = fail(error);
    ::unlink(name.constData());
    return result;
}

bool Files::copyContents(int from, int to) {
    if (::ioctl(to, FICLONE, from) == 0)
        return true;
    constexpr std::size_t piece = 1 << 30;
    while (::copy_file_range(from, nullptr, to, nullptr, piece, 0) > 0) {
    }
    // What is left, which is all where a file system does not support that.
    char buffer[1 << 16];
    for (;;) {
        const ssize_t count = ::read(from, buffer, sizeof buffer);
        if (count <= 0)
            return count == 0;
        if (!writeAll(to, buffer, std::size_t(count)))
            return false;
    }
}

bool Files::linkOrCopy(const QString& source, const QString& target, Message* error) {
    if (::link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData()) == 0)
        return true;
    return copy(source, target, error);
}

bool Files::haveSameContent(const QString& one, const QString& other) {
    QFile first(one);
    QFile second(other);
    const auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (!first.open(mode) || !second.open(mode) || first.size() != second.size())
        return false;
    constexpr qint64 piece = 1 << 18;
    for (qint64 left = first.size(); left > 0;) {
        const QByteArray bytes = first.read(std::min(piece, left));
        if (bytes.isEmpty() || second.read(bytes.size()) != bytes)
            return false;
        left -= bytes.size();
    }
    return true;
}

QByteArray Files::digest(const QString& path, QCryptographicHash::Algorithm algorithm) {
    QFile file(path);
    QCryptographicHash hash(algorithm);
    const bool isRead = QFileInfo(path).isFile() && // opening a pipe would block
                        file.open(QIODevice::ReadOnly) && hash.addData(&file);
    return isRead ? hash.result().toHex() : QByteArray();
}

QString Files::join(const QString& folder, const QString& name) {
    if (name.isEmpty())
        return folder;
    if (folder.isEmpty())
        return name;
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString Files::pathExtension(const QString& path) {
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QStringLiteral("") : name.mid(dot + 1);
}

QString Files::lastPathComponent(const QString& path) {
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    return path.mid(0, end).section(u'/', -1);
}
