#include "output/PublishTransaction.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/StagingFolder.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The file type at a path, 0 for none. Symbolic links are not followed.
mode_t kindOf(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & S_IFMT : 0;
}

bool exists(const QString& path) {
    return kindOf(path) != 0;
}

bool isFolder(const QString& path) {
    return kindOf(path) == S_IFDIR;
}

bool moveFile(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// A hard link to, or a copy of, a symbolic link or special file itself.
bool linkOrCopySymlink(const QString& path, const QString& name) {
    const QByteArray from = QFile::encodeName(path);
    const QByteArray to = QFile::encodeName(name);
    if (::linkat(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), 0) == 0)
        return true;
    // Systems may refuse hard links to another user's files.
    std::error_code error;
    std::filesystem::copy_symlink(from.toStdString(), to.toStdString(), error);
    return !error;
}

// A clean path in one folder as the same path in another; other paths as they are.
QString moved(const QString& path, const QString& from, const QString& to) {
    return path == from || path.startsWith(from + u'/') ? to + path.sliced(from.size()) : path;
}

QString parentOf(const QString& path) {
    return QDir::cleanPath(path).section(u'/', 0, -2);
}

} // namespace

void PublishTransaction::fail(const QString& path, const Message& cause) {
    throw PlatformException(ErrorKind::publishing, Message::about(path, cause));
}

QByteArray PublishTransaction::contents(const QString& path) {
    Message error;
    QByteArray bytes = Files::contents(path, &error);
    if (!error.isNull())
        fail(path, error);
    return bytes;
}

PublishTransaction::PublishTransaction(const QString& folder, const QString& workingFolder)
    : iNamedFolder(folder.isEmpty() ? QStringLiteral(".") : QDir::cleanPath(folder)),
      iFolder(workingFolder.isNull() ? iNamedFolder : QDir::cleanPath(workingFolder)) {
    try {
        makeRoot(iFolder);
        StagingFolder::removeStale(iFolder);
        iStaging = StagingFolder::make(iFolder);
        if (iStaging.isNull())
            failWithErrno(iFolder);
    } catch (...) {
        removeCreatedRoots();
        throw;
    }
}

QString PublishTransaction::onDisk(const QString& path) const {
    return moved(QDir::cleanPath(path), iNamedFolder, iFolder);
}

void PublishTransaction::failAt(const QString& pathOnDisk, const Message& cause) const {
    fail(moved(pathOnDisk, iFolder, iNamedFolder), cause);
}

void PublishTransaction::failWithErrno(const QString& pathOnDisk) const {
    failAt(pathOnDisk, Message::ofLastSystemError());
}

PublishTransaction::~PublishTransaction() {
    if (!iCommitted && !rollBack()) {
        preserveBackups();
        return;
    }
    StagingFolder::remove(iStaging);
    if (!iCommitted)
        removeCreatedRoots();
}

// Renames the staging folder so that no later run removes it as stale.
void PublishTransaction::preserveBackups() const {
    const QString rescue =
        Files::join(iFolder, QStringLiteral("folvero-rescued-%1").arg(::getpid()));
    const bool moved = moveFile(iStaging, rescue);
    Log("PublishTransaction")
        .error(QStringLiteral("earlier files could not be put back; they are in %1")
                   .arg(moved ? rescue : iStaging));
}

void PublishTransaction::makeFolder(const QString& path) {
    iFoldersToMake << onDisk(path);
}

void PublishTransaction::copy(const QString& source, const QString& target, Copy kind,
                              Phase phase) {
    const QString staged = stage(target, phase);
    Message error;
    const bool done = kind == Copy::mayHardLink ? Files::linkOrCopy(source, staged, &error)
                                                : Files::copy(source, staged, &error);
    if (!done)
        fail(target, error);
}

void PublishTransaction::write(const QString& target, const QByteArray& data, Phase phase) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    Message error;
    if (!Files::writeWorkingFile(stage(target, phase), {bytes, std::size_t(data.size())}, &error))
        fail(target, error);
}

// All files at once: a flush for each of thousands takes longer than to make them.
void PublishTransaction::flush() const {
    const int folder =
        ::open(QFile::encodeName(iStaging).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool isFlushed = folder >= 0 && ::syncfs(folder) == 0;
    const int cause = errno;
    if (folder >= 0)
        ::close(folder);
    errno = cause;
    if (!isFlushed)
        failWithErrno(iFolder);
}

QString PublishTransaction::stage(const QString& target, Phase phase) {
    Change& change = changeOf(target);
    if (!change.staged.isNull())
        QFile::remove(change.staged);
    change.staged = newName();
    change.phase = phase;
    return change.staged;
}

void PublishTransaction::remove(const QString& target) {
    Change& change = changeOf(target);
    if (!change.staged.isNull())
        QFile::remove(change.staged);
    change.staged = QString();
}

bool PublishTransaction::willExist(const QString& path) const {
    const QString clean = onDisk(path);
    const auto found = iIndexOfTarget.constFind(clean);
    if (found != iIndexOfTarget.cend())
        return !iChanges[*found].staged.isNull();
    return iFoldersToMake.contains(clean) || (exists(clean) && !isBehindLink(clean));
}

QString PublishTransaction::stagedFile(const QString& path) const {
    const auto found = iIndexOfTarget.constFind(onDisk(path));
    return found != iIndexOfTarget.cend() ? iChanges[*found].staged : QString();
}

std::vector<std::pair<QString, QString>> PublishTransaction::stagedFiles() const {
    std::vector<std::pair<QString, QString>> files;
    for (const Change& change : iChanges) {
        if (!change.staged.isNull())
            files.emplace_back(moved(change.target, iFolder, iNamedFolder), change.staged);
    }
    return files;
}

QString PublishTransaction::newName() {
    return Files::join(iStaging, QString::number(++iNameCount));
}

PublishTransaction::Change& PublishTransaction::changeOf(const QString& target) {
    const QString clean = onDisk(target);
    const auto found = iIndexOfTarget.constFind(clean);
    if (found != iIndexOfTarget.cend())
        return iChanges[*found];
    iIndexOfTarget.insert(clean, iChanges.size());
    iChanges.push_back({clean, QString(), Phase::contents});
    return iChanges.back();
}

void PublishTransaction::commit() {
    std::stable_sort(iChanges.begin(), iChanges.end(),
                     [](const Change& a, const Change& b) { return a.phase < b.phase; });
    flush();
    for (const QString& path : iFoldersToMake)
        makeFolderNow(path);
    for (const Change& change : iChanges) {
        if (!change.staged.isNull())
            install(change);
    }
    // Last, since the existing book may still refer to these files.
    for (const Change& change : iChanges) {
        if (change.staged.isNull())
            removeTarget(change);
    }
    iCommitted = true;
}

void PublishTransaction::makeRoot(const QString& path) {
    if (path.isEmpty() || QFileInfo(path).isDir())
        return;
    makeRoot(parentOf(path));
    if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0)
        failWithErrno(path);
    iCreatedRoots << path;
}

void PublishTransaction::makeFolderNow(const QString& path) {
    if (!isBeneath(path))
        return makeRoot(path);
    if (isFolder(path))
        return;
    makeFolderNow(parentOf(path));
    if (kindOf(path) == S_IFLNK)
        moveToStaging(path);
    if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0)
        failWithErrno(path);
    iDone.push_back({path, QString(), true});
}

void PublishTransaction::moveToStaging(const QString& path) {
    const QString backup = newName();
    if (!moveFile(path, backup))
        failWithErrno(path);
    iDone.push_back({path, backup});
}

QString PublishTransaction::makeBackup(const QString& path) {
    const QString name = newName();
    if (kindOf(path) != S_IFREG)
        return linkOrCopySymlink(path, name) ? name : QString();
    Message error;
    if (!Files::linkOrCopy(path, name, &error))
        failAt(path, error);
    return name;
}

// A file with other hard links is replaced even by the same content: it is not the book's alone.
bool PublishTransaction::isUpToDate(const Change& change) const {
    struct stat there {};
    struct stat staged {};
    if (::lstat(QFile::encodeName(change.target).constData(), &there) != 0 ||
        ::lstat(QFile::encodeName(change.staged).constData(), &staged) != 0 ||
        !S_ISREG(there.st_mode) || there.st_mode != staged.st_mode)
        return false;
    if (there.st_dev == staged.st_dev && there.st_ino == staged.st_ino)
        return true;
    return there.st_nlink == 1 && there.st_size == staged.st_size &&
           Files::haveSameContent(change.target, change.staged);
}

void PublishTransaction::install(const Change& change) {
    makeFolderNow(parentOf(change.target));
    iCounts.bytes += QFileInfo(change.staged).size();
    if (isUpToDate(change)) {
        ++iCounts.unchanged;
        return;
    }
    const mode_t kind = kindOf(change.target);
    if (kind == S_IFDIR)
        failAt(change.target,
               Message::translate("FolveroOutput", "There is a folder of that name"));
    const QString backup = kind == 0 ? QString() : makeBackup(change.target);
    if (kind != 0 && backup.isNull())
        moveToStaging(change.target);
    if (!moveFile(change.staged, change.target))
        failWithErrno(change.target);
    iDone.push_back({change.target, backup});
    ++iCounts.written;
}

void PublishTransaction::removeTarget(const Change& change) {
    if (!exists(change.target) || isFolder(change.target) || isBehindLink(change.target))
        return;
    moveToStaging(change.target);
    ++iCounts.removed;
}

bool PublishTransaction::isBeneath(const QString& path) const {
    if (iFolder == u".")
        return !path.isEmpty() && path != u"." && !path.startsWith(u'/');
    return path.startsWith(iFolder.endsWith(u'/') ? iFolder : iFolder + u'/') && path != iFolder;
}

// Whether a folder between the transaction's folder and the path is a link.
bool PublishTransaction::isBehindLink(const QString& path) const {
    for (QString folder = parentOf(path); isBeneath(folder); folder = parentOf(folder)) {
        if (kindOf(folder) == S_IFLNK)
            return true;
    }
    return false;
}

bool PublishTransaction::rollBack() {
    bool complete = true;
    for (auto step = iDone.rbegin(); step != iDone.rend(); ++step) {
        if (step->isFolder)
            ::rmdir(QFile::encodeName(step->target).constData());
        else if (step->backup.isNull())
            QFile::remove(step->target);
        else
            complete = moveFile(step->backup, step->target) && complete;
    }
    return complete;
}

void PublishTransaction::removeCreatedRoots() {
    for (auto path = iCreatedRoots.crbegin(); path != iCreatedRoots.crend(); ++path)
        ::rmdir(QFile::encodeName(*path).constData());
}
