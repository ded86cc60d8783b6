#include "cli/OutputFolder.h"

#include "cli/CommandError.h"
#include "platform/Message.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

// Removes the folder and the ones around it, up to the outermost one that was made, as long as they
// are empty.
void removeEmptyFolders(const QString& path, const QString& outermost) {
    for (QString folder = path; folder.size() >= outermost.size();
         folder = QFileInfo(folder).path()) {
        if (!QDir().rmdir(folder))
            return;
    }
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
        tryToWrite(path);
    } catch (...) {
        giveUp();
        throw;
    }
}

OutputFolder::~OutputFolder() {
    giveUp();
}

void OutputFolder::make(const QString& path) {
    for (QString folder = iPath; !QFileInfo::exists(folder); folder = QFileInfo(folder).path())
        iFirstMade = folder;
    if (!iFirstMade.isNull() && !QDir().mkpath(iPath)) {
        throw CommandError(QStringLiteral("%1: the output folder can't be made (%2)")
                               .arg(path, Message::ofLastSystemError().english()));
    }
    if (!QFileInfo(iPath).isDir())
        throw CommandError(QStringLiteral("%1: is a file, not a folder").arg(path));
}

void OutputFolder::lock(const QString& path) {
    iLock = ::open(QFile::encodeName(iPath).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // Some network folders know no locks; two books at once are then up to the user.
    if (iLock >= 0 && ::flock(iLock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        throw CommandError(
            QStringLiteral("%1: another folvero is making a book in this folder").arg(path));
    }
}

void OutputFolder::tryToWrite(const QString& path) const {
    QTemporaryFile probe(iPath + QStringLiteral("/.folvero-XXXXXX"));
    if (!probe.open()) {
        throw CommandError(QStringLiteral("%1: the output folder can't be written (%2)")
                               .arg(path, probe.errorString()));
    }
}

void OutputFolder::giveUp() {
    if (!iKept && !iFirstMade.isNull())
        removeEmptyFolders(iPath, iFirstMade);
    if (iLock >= 0)
        ::close(iLock);
}
