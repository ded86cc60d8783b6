#include "output/NextEdition.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/CommitSwitch.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"
#include "system/FolderCopy.h"
#include "system/FolderRemoval.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr Log editionLog("NextEdition");

QString parentOf(const QString& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 0));
}

QString topOf(const QString& path) {
    return path.section(u'/', 0, 0);
}

bool isIn(const QString& top, const QString& path) {
    return path.size() > top.size() && path.startsWith(top) && path[top.size()] == u'/';
}

} // namespace

NextEdition::NextEdition(Places places, std::vector<Change>& changes, const QStringList& folders)
    : iPlaces(std::move(places)), iChanges(changes) {
    for (const QString& path : folders) {
        requireFolder(path);
        if (typeOfFolder(path) != S_IFDIR)
            addTop(path);
    }
    for (std::size_t i = 0; i < iChanges.size(); ++i) {
        compare(iChanges[i]);
        if (!iChanges[i].isNeeded)
            continue;
        iIndexOfPath.insert(iChanges[i].path, i);
        if (iChanges[i].path.contains(u'/'))
            addTop(iChanges[i].path);
    }
}

void NextEdition::fail(const QString& path, const Message& cause) const {
    throw PlatformException(ErrorKind::publishing,
                            Message::about(Files::join(iPlaces.namedFolder, path), cause));
}

// Symbolic links are not followed at the end of a path.
mode_t NextEdition::typeOf(const QString& path) const {
    struct stat info {};
    const QByteArray name = QFile::encodeName(path);
    return ::fstatat(iPlaces.folderNumber, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0
               ? info.st_mode & S_IFMT
               : 0;
}

mode_t NextEdition::typeOfFolder(const QString& path) {
    if (path.isEmpty())
        return S_IFDIR;
    const auto known = iTypes.constFind(path);
    if (known != iTypes.cend())
        return *known;
    const mode_t type = typeOfFolder(parentOf(path)) == S_IFDIR ? typeOf(path) : 0;
    iTypes.insert(path, type);
    return type;
}

// A link gives way to a folder, other files do not.
void NextEdition::requireFolder(const QString& path) {
    if (path.isEmpty() || iFolders.contains(path))
        return;
    requireFolder(parentOf(path));
    const mode_t type = typeOfFolder(path);
    if (type != 0 && type != S_IFDIR && type != S_IFLNK)
        fail(path, Message::ofSystemError(EEXIST));
    iFolders.insert(path);
}

void NextEdition::addTop(const QString& path) {
    const QString top = topOf(path);
    if (!iTops.contains(top))
        iTops << top;
}

// Finds out whether there is something to do.
void NextEdition::compare(Change& change) {
    struct stat there {};
    const bool isReachable = typeOfFolder(parentOf(change.path)) == S_IFDIR;
    const QByteArray name = QFile::encodeName(change.path);
    const bool exists = isReachable && ::fstatat(iPlaces.folderNumber, name.constData(), &there,
                                                 AT_SYMLINK_NOFOLLOW) == 0;
    const bool isFolder = exists && S_ISDIR(there.st_mode);
    if (change.staged == 0) {
        change.isNeeded = exists && !isFolder;
        iCounts.removed += change.isNeeded ? 1 : 0;
        return;
    }
    requireFolder(parentOf(change.path));
    struct stat staged {};
    if (::fstatat(iPlaces.stagingNumber, QByteArray::number(change.staged).constData(), &staged,
                  AT_SYMLINK_NOFOLLOW) != 0)
        fail(change.path, Message::ofLastSystemError());
    iCounts.bytes += staged.st_size;
    change.isNeeded = !exists || !isUpToDate(change, there, staged);
    if (change.isNeeded && isFolder)
        fail(change.path, Message::translate("FolveroOutput", "There is a folder of that name"));
    ++(change.isNeeded ? iCounts.written : iCounts.unchanged);
}

// A file with other hard links is replaced even by the same content: it is not the book's alone.
bool NextEdition::isUpToDate(const Change& change, const struct stat& there,
                             const struct stat& staged) const {
    if (!S_ISREG(there.st_mode) || there.st_mode != staged.st_mode)
        return false;
    if (there.st_dev == staged.st_dev && there.st_ino == staged.st_ino)
        return true;
    return there.st_nlink == 1 && there.st_size == staged.st_size &&
           Files::haveSameContent(Files::join(iPlaces.folder, change.path),
                                  Files::join(iPlaces.staging, QString::number(change.staged)));
}

void NextEdition::prepare(CommitSwitch& to) {
    for (const QString& top : std::as_const(iTops)) {
        if (!makeFolder(top, to.swapFolder()))
            iInPlace << top;
    }
    for (const Change& change : iChanges) {
        if (change.isNeeded && change.staged != 0 && !change.path.contains(u'/'))
            moveStaged(change, to.swapFolder());
    }
    addSteps(to);
}

void NextEdition::changeInPlace(CommitSwitch& to) {
    for (const QString& top : std::as_const(iTops)) {
        if (typeOfFolder(top) == S_IFDIR)
            iInPlace << top;
    }
    to.clear();
    addSteps(to);
}

// What is there already, and false when the folder has to be changed in place.
bool NextEdition::makeFolder(const QString& top, int to) const {
    const QByteArray name = QFile::encodeName(top);
    if (::mkdirat(to, name.constData(), 0777) != 0)
        fail(top, Message::ofLastSystemError());
    std::optional<Message> obstacle;
    if (iTypes.value(top) == S_IFDIR)
        obstacle = copyFolder(top, to);
    if (obstacle) {
        editionLog.info(QStringLiteral("the files in %1 are exchanged one by one: %2")
                            .arg(top, obstacle->english()));
        FolderRemoval::removeEntry(to, name);
        if (::mkdirat(to, name.constData(), 0777) != 0 && errno != EEXIST)
            fail(top, Message::ofLastSystemError());
    }
    moveFiles(top, to);
    return !obstacle;
}

// All but what is written or removed, or in the way of a folder. Returns what can't be copied.
std::optional<Message> NextEdition::copyFolder(const QString& top, int to) const {
    const QByteArray name = QFile::encodeName(top);
    const FileDescriptor source(::openat(iPlaces.folderNumber, name.constData(), openFolderItself));
    const FileDescriptor target(::openat(to, name.constData(), openFolderItself));
    if (!source.isOpen() || !target.isOpen())
        return Message::ofLastSystemError();
    const auto isLeftOut = [&](const QByteArray& path, mode_t type) {
        const QString whole = top + u'/' + QFile::decodeName(path);
        return type != S_IFDIR && (iIndexOfPath.contains(whole) || iFolders.contains(whole));
    };
    const auto failure = FolderCopy::link(source.number(), target.number(), isLeftOut);
    return failure ? Message::about(QFile::decodeName(failure->path), failure->cause)
                   : std::optional<Message>();
}

// Parents first.
QStringList NextEdition::foldersIn(const QString& top) const {
    QStringList folders;
    for (const QString& folder : iFolders) {
        if (isIn(top, folder))
            folders << folder;
    }
    folders.sort();
    return folders;
}

void NextEdition::moveFiles(const QString& top, int to) const {
    for (const QString& folder : foldersIn(top)) {
        if (::mkdirat(to, QFile::encodeName(folder).constData(), 0777) != 0 && errno != EEXIST)
            fail(folder, Message::ofLastSystemError());
    }
    for (const Change& change : iChanges) {
        if (change.isNeeded && change.staged != 0 && isIn(top, change.path))
            moveStaged(change, to);
    }
    removeEmptied(top, to);
}

// Folders whose last file is removed.
void NextEdition::removeEmptied(const QString& top, int to) const {
    for (const Change& change : iChanges) {
        const QString folder = parentOf(change.path);
        if (change.isNeeded && change.staged == 0 && isIn(top, folder) &&
            !iFolders.contains(folder))
            ::unlinkat(to, QFile::encodeName(folder).constData(), AT_REMOVEDIR); // fails for others
    }
}

void NextEdition::addSteps(CommitSwitch& to) {
    for (const QString& top : std::as_const(iTops)) {
        if (iInPlace.contains(top))
            addNewFolders(top, to);
        else
            addReplacement(top, to);
    }
    for (const Change& change : iChanges) {
        if (change.staged != 0 && isStep(change))
            addReplacement(change.path, to);
    }
    // Last, since the existing book may still refer to these files.
    for (const Change& change : iChanges) {
        if (change.staged == 0 && isStep(change))
            to.addRemoval(QFile::encodeName(change.path));
    }
}

// With all that is to be in them.
void NextEdition::addNewFolders(const QString& top, CommitSwitch& to) {
    for (const QString& folder : foldersIn(top)) {
        if (typeOfFolder(folder) != S_IFDIR && typeOfFolder(parentOf(folder)) == S_IFDIR)
            addReplacement(folder, to);
    }
}

void NextEdition::addReplacement(const QString& path, CommitSwitch& to) const {
    if (!to.addReplacement(QFile::encodeName(path)))
        fail(path, Message::ofLastSystemError());
}

// Whether a file is exchanged by itself.
bool NextEdition::isStep(const Change& change) {
    return change.isNeeded &&
           (!change.path.contains(u'/') || (iInPlace.contains(topOf(change.path)) &&
                                            typeOfFolder(parentOf(change.path)) == S_IFDIR));
}

void NextEdition::moveStaged(const Change& change, int to) const {
    if (::renameat(iPlaces.stagingNumber, QByteArray::number(change.staged).constData(), to,
                   QFile::encodeName(change.path).constData()) != 0)
        fail(change.path, Message::ofLastSystemError());
}
