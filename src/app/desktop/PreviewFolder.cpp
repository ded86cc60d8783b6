#include "app/desktop/PreviewFolder.h"

#include "base/Log.h"
#include "system/Folders.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>

namespace {

constexpr Log previewLog("BrisleafAppDelegate");

// With more programs than this something else is wrong; they share the last folder.
constexpr int maxFolders = 32;

QString numbered(const QString& home, int number) {
    return home +
           (number == 1 ? QStringLiteral("/preview") : QStringLiteral("/preview-%1").arg(number));
}

QString lockFileOf(const QString& path) {
    return path + QStringLiteral(".lock");
}

// It never expires while the program runs.
std::unique_ptr<QLockFile> lockOf(const QString& path) {
    auto lock = std::make_unique<QLockFile>(lockFileOf(path));
    lock->setStaleLockTime(0);
    return lock;
}

} // namespace

QString PreviewFolder::claim(const QString& home) {
    QString path;
    for (int number = 1; number <= maxFolders; ++number) {
        path = numbered(home, number);
        iLock = lockOf(path);
        if (iLock->tryLock() || iLock->error() != QLockFile::LockFailedError)
            break;
    }
    return path;
}

void PreviewFolder::removeAbandoned(const QString& home) const {
    for (int number = 1; number <= maxFolders; ++number) {
        const QString path = numbered(home, number);
        const bool isThere = QFileInfo::exists(path) || QFileInfo::exists(lockFileOf(path));
        if (path == iPath || !isThere)
            continue;
        if (const auto lock = lockOf(path); lock->tryLock())
            QDir(path).removeRecursively();
    }
}

QString PreviewFolder::make() {
    const QString support = Folders::userApplicationSupport();
    const QString home =
        (support.isNull() ? QStringLiteral("/temp") : support) + QStringLiteral("/Folvero");
    QDir().mkpath(home);
    iPath = claim(home);
    removeAbandoned(home);
    const Message failure = restore();
    if (!failure.isNull())
        previewLog.warn(
            QStringLiteral("flash preview folder cannot be crearted[%1]").arg(failure.english()));
    return iPath;
}

Message PreviewFolder::restore() const {
    errno = 0;
    if (QDir(iPath).exists() || QDir().mkpath(iPath))
        return {};
    return Message::about(iPath, Message::ofLastSystemError());
}

void PreviewFolder::remove() {
    if (!iPath.isEmpty())
        QDir(iPath).removeRecursively();
    iLock.reset();
}
