#include "cli/OutputFolder.h"

#include "base/Message.h"
#include "console/CommandError.h"
#include "system/NameAliases.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isThere(const QByteArray& path) {
    struct stat info {};
    return ::stat(path.constData(), &info) == 0;
}

// ENOENT here is a wrong path, so trying again does not help.
Message lastError() {
    const bool leadsNowhere = errno == ENOENT;
    const Message error = Message::ofLastSystemError();
    return leadsNowhere ? Message(error.english()) : error;
}

[[noreturn]] void fail(const Message& text, const QString& path, const Message& cause) {
    throw CommandError(Messages{text.arg(path, cause)});
}

} // namespace

OutputFolder::OutputFolder(const QString& path)
    : iPath(QDir::cleanPath(QFileInfo(path).absoluteFilePath())) {
    if (path.isEmpty())
        throw CommandError(QStringLiteral("the name of the output folder is empty"),
                           ExitCode::usage);
    try {
        make(path);
        lock(path);
        checkWritable(path);
    } catch (...) {
        removeCreated();
        throw;
    }
}

OutputFolder::~OutputFolder() {
    removeCreated();
}

void OutputFolder::make(const QString& path) {
    QByteArrayList missing;
    for (QByteArray folder = NameAliases::encoded(iPath); !folder.isEmpty() && !isThere(folder);
         folder.truncate(folder.lastIndexOf('/')))
        missing.prepend(folder);
    for (const QByteArray& folder : missing) {
        if (::mkdir(folder.constData(), 0777) == 0)
            iMade.prepend(folder);
        else if (errno != EEXIST || !isThere(folder)) // another run may have made it
            fail(QStringLiteral("%1: the output folder can't be made (%2)"), path, lastError());
    }
    if (!QFileInfo(iPath).isDir())
        throw CommandError(QStringLiteral("%1: is a file, not a folder").arg(path));
}

void OutputFolder::lock(const QString& path) {
    iLock = FileDescriptor(
        ::open(QFile::encodeName(iPath).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some network file systems have no locks; avoiding two runs is then up to the user.
    if (iLock.isOpen() && ::flock(iLock.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        throw CommandError(
            QStringLiteral("%1: another folvero is making a book in this folder").arg(path),
            ExitCode::tryAgain);
    }
}

void OutputFolder::checkWritable(const QString& path) const {
    QTemporaryFile probe(iPath + QStringLiteral("/.folvero-XXXXXX"));
    errno = 0;
    if (!probe.open())
        fail(QStringLiteral("%1: the output folder can't be written (%2)"), path,
             errno ? lastError() : Message(probe.errorString()));
}

void OutputFolder::checkPresence() const {
    struct stat made {};
    struct stat there {};
    const bool isThere = ::stat(QFile::encodeName(iPath).constData(), &there) == 0;
    // A folder that is writable but not readable has no descriptor.
    const bool isSame = ::fstat(iLock.number(), &made) != 0 ||
                        (made.st_dev == there.st_dev && made.st_ino == there.st_ino);
    if (!isThere || !isSame)
        throw CommandError(
            QStringLiteral(
                "%1: the output folder is gone, or another one has its name; no book was made")
                .arg(iPath),
            ExitCode::tryAgain);
}

void OutputFolder::removeCreated() {
    if (iKept)
        return;
    for (const QByteArray& folder : iMade) {
        if (::rmdir(folder.constData()) != 0)
            return;
    }
}
