#include "app/desktop/ProjectRecovery.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "project/ProjectFile.h"
#include "project/ProjectJSON.h"
#include "system/Files.h"
#include "system/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <optional>

namespace {

constexpr Log recoveryLog("ProjectRecovery");

const QString lockEnding = QStringLiteral(".lock");

std::unique_ptr<QLockFile> lockOf(const QString& path) {
    auto lock = std::make_unique<QLockFile>(path + lockEnding);
    // It never expires while the program runs.
    lock->setStaleLockTime(0);
    return lock;
}

// None for a file that can't be read, such as one of a newer version.
std::optional<Project> projectIn(const QString& path) {
    try {
        return ProjectFile::read(path);
    } catch (const PlatformException& failure) {
        recoveryLog.warn(failure.reason());
        return std::nullopt;
    }
}

} // namespace

QString ProjectRecovery::folder() {
    const QString support = Folders::userApplicationSupport();
    return Files::join(support.isNull() ? Folders::temporary() : support,
                       QStringLiteral("Folvero/recovery"));
}

void ProjectRecovery::write(const Project& project) {
    const QByteArray content = ProjectJSON::written(project);
    if (content == iWritten)
        return;
    if (iPath.isNull()) {
        QDir().mkpath(folder());
        iPath = Files::join(folder(), QUuid::createUuid().toString(QUuid::Id128) + u'.' +
                                          ProjectFile::extension);
        iLock = lockOf(iPath);
        iLock->tryLock();
    }
    Message error;
    if (ProjectFile::write(project, {}, iPath, &error))
        iWritten = content;
    else
        recoveryLog.warn(Message::about(iPath, error).english());
}

void ProjectRecovery::remove() {
    if (!iPath.isNull())
        QFile::remove(iPath);
    iPath = QString();
    iWritten.clear();
    iLock.reset();
}

// Of programs that were killed before, or while, they wrote their file: its lock, which is removed
// with its object, or a temporary file beside it.
void ProjectRecovery::removeRemains() {
    const QDir all(folder());
    const QString ending = u'.' + ProjectFile::extension;
    for (const QString& name : all.entryList(QDir::Files | QDir::Hidden)) {
        const qsizetype end = name.indexOf(ending);
        const QString own = name.left(end + ending.size());
        const bool isLock = name == own + lockEnding;
        if (end < 0 || name == own || (isLock && all.exists(own)))
            continue;
        if (const auto lock = lockOf(all.filePath(own)); lock->tryLock() && !isLock)
            QFile::remove(all.filePath(name));
    }
}

void ProjectRecovery::offer(const Take& take) {
    removeRemains();
    const auto files = QDir(folder()).entryInfoList({QStringLiteral("*.") + ProjectFile::extension},
                                                    QDir::Files, QDir::Time);
    for (const QFileInfo& file : files) {
        const QString path = file.filePath();
        const auto lock = lockOf(path);
        if (!lock->tryLock() || !QFileInfo::exists(path))
            continue;
        const auto project = projectIn(path);
        if (!project)
            continue;
        const bool isTaken = take(*project, file.lastModified());
        QFile::remove(path);
        if (isTaken)
            return;
    }
}
