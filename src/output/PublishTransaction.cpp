#include "output/PublishTransaction.h"

#include "base/PlatformException.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <numeric>
#include <sys/stat.h>

namespace {

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
        iCommit.emplace(iFolder, iNamedFolder);
    } catch (...) {
        removeCreatedRoots();
        throw;
    }
}

PublishTransaction::~PublishTransaction() {
    iCommit.reset();
    if (!iCommitted)
        removeCreatedRoots();
}

QString PublishTransaction::relative(const QString& path) const {
    const QString clean = QDir::cleanPath(path);
    if (clean == iNamedFolder)
        return QStringLiteral("");
    if (iNamedFolder == u".") {
        if (!clean.isEmpty() && !clean.startsWith(u'/') && !clean.startsWith(u"../"))
            return clean;
    } else {
        const QString start = iNamedFolder.endsWith(u'/') ? iNamedFolder : iNamedFolder + u'/';
        if (clean.startsWith(start))
            return clean.sliced(start.size());
    }
    fail(path, Message::ofSystemError(EINVAL));
}

QString PublishTransaction::named(const QString& relativePath) const {
    return iNamedFolder == u"." && !relativePath.isEmpty()
               ? relativePath
               : Files::join(iNamedFolder, relativePath);
}

QString PublishTransaction::stagedPath(int name) const {
    return Files::join(iCommit->staging(), QString::number(name));
}

void PublishTransaction::makeRoot(const QString& path) {
    if (path.isEmpty() || QFileInfo(path).isDir())
        return;
    makeRoot(parentOf(path));
    if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0)
        fail(path == iFolder ? iNamedFolder : path, Message::ofLastSystemError());
    iCreatedRoots << path;
}

void PublishTransaction::makeFolder(const QString& path) {
    iFoldersToMake << relative(path);
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

QString PublishTransaction::stage(const QString& target, Phase phase) {
    const std::size_t index = indexOf(relative(target));
    NextEdition::Change& change = iChanges[index];
    if (change.staged != 0)
        QFile::remove(stagedPath(change.staged));
    change.staged = ++iNameCount;
    iPhases[index] = phase;
    return stagedPath(change.staged);
}

void PublishTransaction::remove(const QString& target) {
    NextEdition::Change& change = iChanges[indexOf(relative(target))];
    if (change.staged != 0)
        QFile::remove(stagedPath(change.staged));
    change.staged = 0;
}

bool PublishTransaction::willExist(const QString& path) const {
    const QString inFolder = relative(path);
    const auto found = iIndexOfPath.constFind(inFolder);
    if (found != iIndexOfPath.cend())
        return iChanges[*found].staged != 0;
    struct stat info {};
    return iFoldersToMake.contains(inFolder) ||
           (::fstatat(iCommit->folderNumber(), QFile::encodeName(inFolder).constData(), &info,
                      AT_SYMLINK_NOFOLLOW | AT_EMPTY_PATH) == 0 &&
            !isBehindLink(inFolder));
}

// Whether a folder between the transaction's folder and the path is a link.
bool PublishTransaction::isBehindLink(const QString& relativePath) const {
    for (QString folder = parentOf(relativePath); !folder.isEmpty(); folder = parentOf(folder)) {
        struct stat info {};
        if (::fstatat(iCommit->folderNumber(), QFile::encodeName(folder).constData(), &info,
                      AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISLNK(info.st_mode))
            return true;
    }
    return false;
}

QString PublishTransaction::stagedFile(const QString& path) const {
    const auto found = iIndexOfPath.constFind(relative(path));
    return found != iIndexOfPath.cend() && iChanges[*found].staged != 0
               ? stagedPath(iChanges[*found].staged)
               : QString();
}

std::vector<std::pair<QString, QString>> PublishTransaction::stagedFiles() const {
    std::vector<std::pair<QString, QString>> files;
    for (const NextEdition::Change& change : iChanges) {
        if (change.staged != 0)
            files.emplace_back(named(change.path), stagedPath(change.staged));
    }
    return files;
}

std::size_t PublishTransaction::indexOf(const QString& relativePath) {
    const auto found = iIndexOfPath.constFind(relativePath);
    if (found != iIndexOfPath.cend())
        return *found;
    iIndexOfPath.insert(relativePath, iChanges.size());
    iChanges.push_back({relativePath});
    iPhases.push_back(Phase::contents);
    return iChanges.size() - 1;
}

void PublishTransaction::sortByPhase() {
    std::vector<std::size_t> order(iChanges.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return iPhases[a] < iPhases[b]; });
    std::vector<NextEdition::Change> sorted;
    sorted.reserve(iChanges.size());
    for (const std::size_t index : order)
        sorted.push_back(std::move(iChanges[index]));
    iChanges = std::move(sorted);
}

void PublishTransaction::commit() {
    sortByPhase();
    listEntries();
    NextEdition next({iFolder, iNamedFolder == u"." ? QString() : iNamedFolder, iCommit->staging(),
                      iCommit->folderNumber(), iCommit->stagingNumber()},
                     iChanges, iFoldersToMake);
    next.prepare(iCommit->steps());
    iCommit->commit([&] { next.changeInPlace(iCommit->steps()); });
    iCounts = next.counts();
    iCommitted = true;
}

void PublishTransaction::listEntries() {
    QSet<QString> entries;
    for (const QString& folder : std::as_const(iFoldersToMake))
        entries << folder.section(u'/', 0, 0);
    for (const NextEdition::Change& change : iChanges)
        entries << change.path.section(u'/', 0, 0);
    entries.remove(QString()); // the folder itself
    for (const QString& entry : std::as_const(entries))
        iCommit->mayDelete(entry);
}

void PublishTransaction::removeCreatedRoots() {
    for (auto path = iCreatedRoots.crbegin(); path != iCreatedRoots.crend(); ++path)
        ::rmdir(QFile::encodeName(*path).constData());
}
