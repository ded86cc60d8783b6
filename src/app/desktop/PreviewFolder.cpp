#include "app/desktop/PreviewFolder.h"

#include "base/Log.h"
#include "system/Folders.h"

#include <QDir>
#include <cerrno>

namespace {

constexpr Log logger("BrisleafAppDelegate");

// With more programs than this something else is wrong; they share the last folder.
constexpr int maxFolders = 32;

} // namespace

QString PreviewFolder::claim(const QString& base) {
    const QString home = base + QStringLiteral("/Folvero");
    QDir().mkpath(home);
    QString path;
    for (int number = 1; number <= maxFolders; ++number) {
        path = home + (number == 1 ? QStringLiteral("/preview")
                                   : QStringLiteral("/preview-%1").arg(number));
        iLock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
        // The lock never expires while the program runs.
        iLock->setStaleLockTime(0);
        if (iLock->tryLock() || iLock->error() != QLockFile::LockFailedError)
            break;
    }
    return path;
}

QString PreviewFolder::make() {
    const QString support = Folders::userApplicationSupport();
    iPath = claim(support.isNull() ? QStringLiteral("/temp") : support);
    const Message failure = restore();
    if (!failure.isNull())
        logger.warn(
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
