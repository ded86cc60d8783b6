#include "system/TemporaryFolders.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/LockedFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

const QString base = QStringLiteral("/tmp");
const QString unique = QStringLiteral("XXXXXX");
constexpr const char* ownVariable = "TMPDIR";
// Earlier versions did not lock their folders; a program is rarely left open for that long.
constexpr std::chrono::seconds unlockedIsOld = 7 * 24h;

FileDescriptor openFolder(const QString& path) {
    return FileDescriptor(::open(QFile::encodeName(path).constData(),
                                 O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

bool isOwn(const QString& path) {
    const FileDescriptor open = openFolder(path);
    struct stat info {};
    return open.isOpen() && ::fstat(open.number(), &info) == 0 && info.st_uid == ::geteuid();
}

// Root takes ownership of a shared folder, since the user who created it could otherwise attack
// root's runs.
void takeOver(int folder) {
    struct stat info {};
    if (::geteuid() == 0 && ::fstat(folder, &info) == 0 && info.st_uid != 0 &&
        ::fchown(folder, 0, 0) == 0)
        ::fchmod(folder, 01777);
}

// Whether only root and this user can remove or replace what this user creates in it.
bool isTrustworthy(int folder) {
    struct stat info {};
    if (::fstat(folder, &info) != 0)
        return false;
    const bool isOpenToOthers = (info.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    return (info.st_uid == 0 || info.st_uid == ::geteuid()) &&
           (!isOpenToOthers || (info.st_mode & S_ISVTX) != 0);
}

void removeStaleIn(const QString& folder, const QString& prefix) {
    const FileDescriptor open = openFolder(folder);
    if (!open.isOpen())
        return;
    const QRegularExpression pattern(u'^' + QRegularExpression::escape(prefix) +
                                     QStringLiteral("[A-Za-z0-9]{6}$"));
    const auto filter = QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks;
    for (const QString& name : QDir(folder).entryList({prefix + u'*'}, filter)) {
        if (pattern.match(name).hasMatch() &&
            LockedFolder::removeIfAbandoned(open.number(), QFile::encodeName(name), unlockedIsOld))
            Log("MirelUtility")
                .info(QStringLiteral("removed what an earlier run left: %1")
                          .arg(Files::join(folder, name)));
    }
}

// A folder in "/tmp"; null, and errno set, where none can be made.
QString makeShared(const QString& name) {
    const QString parent = Files::join(base, name);
    const QString inParent = QStringLiteral("temp.");
    const QString inBase = name + QStringLiteral(".temp.");
    // Writable for all users with the sticky bit, like /tmp, or the first user would lock out the
    // others.
    if (::mkdir(QFile::encodeName(parent).constData(), 0700) == 0)
        ::chmod(QFile::encodeName(parent).constData(), 01777);
    removeStaleIn(parent, inParent);
    removeStaleIn(base, inBase);
    const FileDescriptor open = openFolder(parent);
    QString path;
    if (open.isOpen()) {
        takeOver(open.number());
        if (isTrustworthy(open.number()))
            path = LockedFolder::make(Files::join(parent, inParent + unique));
    }
    if (path.isNull() && !name.contains(u'/'))
        path = LockedFolder::make(Files::join(base, inBase + unique));
    return path;
}

// Whether pages can be written there: a full disk still takes folders.
bool hasRoom(const QString& folder) {
    constexpr off_t enough = 1 << 20;
    const QByteArray probe = QFile::encodeName(Files::join(folder, QStringLiteral("probe")));
    const FileDescriptor file(
        ::open(probe.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    const bool hasRoom = file.isOpen() && ::posix_fallocate(file.number(), 0, enough) == 0;
    ::unlink(probe.constData());
    return hasRoom;
}

// A folder where the user's "TMPDIR" says; null where none can be made.
QString makeInOwn(const QString& name) {
    const QString folder = QFileInfo(QFile::decodeName(qgetenv(ownVariable))).canonicalFilePath();
    const FileDescriptor open = openFolder(folder);
    if (!open.isOpen() || !isTrustworthy(open.number()))
        return {};
    const QString prefix = name + QStringLiteral(".temp.");
    removeStaleIn(folder, prefix);
    const QString path = LockedFolder::make(Files::join(folder, prefix + unique));
    if (path.isNull() || hasRoom(path))
        return path;
    LockedFolder::remove(path);
    return {};
}

} // namespace

QString TemporaryFolders::make(const QString& name) {
    const QString shared = makeShared(name);
    const Message cause = Message::ofLastSystemError();
    const bool hasOwn = !qEnvironmentVariableIsEmpty(ownVariable);
    if (hasOwn && (shared.isNull() || !hasRoom(shared))) {
        if (const QString own = makeInOwn(name); !own.isNull()) {
            if (!shared.isNull())
                remove(shared);
            return own;
        }
    }
    if (!shared.isNull())
        return shared;
    // The last resort is not unique.
    const QString parent = Files::join(base, name);
    const QString pattern = Files::join(parent, QStringLiteral("temp.") + unique);
    if (!QDir().mkpath(pattern) || !isOwn(pattern))
        throw PlatformException(ErrorKind::temporaryFolder, Message::about(parent, cause));
    return pattern;
}

void TemporaryFolders::remove(const QString& path) {
    LockedFolder::remove(path);
}
