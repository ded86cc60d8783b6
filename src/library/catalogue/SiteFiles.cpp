#include "library/catalogue/SiteFiles.h"

#include "base/PlatformException.h"
#include "library/catalogue/CatalogueLayout.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qsizetype digestBytes = 16;

[[noreturn]] void fail(const QString& file, const Message& cause) {
    throw PlatformException(ErrorKind::publishing, Message::about(file, cause));
}

QByteArray digestOf(const QByteArray& content) {
    return QCryptographicHash::hash(content, QCryptographicHash::Blake2b_256).left(digestBytes);
}

QByteArray digestOfFile(const QString& file) {
    return QByteArray::fromHex(Files::digest(file)).left(digestBytes);
}

struct State {
    bool isThere = false;
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds
};

State stateOf(const QString& file) {
    struct stat facts {};
    if (::lstat(QFile::encodeName(file).constData(), &facts) != 0)
        return {};
    return {true, facts.st_size,
            qint64(facts.st_mtim.tv_sec) * 1'000'000'000 + facts.st_mtim.tv_nsec};
}

QByteArray folderOf(const QByteArray& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 0));
}

} // namespace

SiteFiles::SiteFiles(const LibraryLayout& library, bool overwritesForeign,
                     std::chrono::seconds patience, std::function<void()> beforeFile)
    : iLibrary(library),
      iOverwritesForeign(overwritesForeign),
      iBeforeFile(std::move(beforeFile)),
      iLock(std::make_unique<QLockFile>(library.stateAt(QStringLiteral("catalogue.lock")))) {
    lock(patience);
    readList();
    readJournal();
    iJournal.setFileName(journal());
    if (!iJournal.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        fail(journal(), Message::ofLastSystemError());
}

SiteFiles::~SiteFiles() = default;

void SiteFiles::lock(std::chrono::seconds patience) const {
    constexpr std::chrono::milliseconds interval{100};
    iLock->setStaleLockTime(0);
    for (const QDeadlineTimer end(patience); !iLock->tryLock(interval);) {
        if (end.hasExpired() || iLock->error() != QLockFile::LockFailedError)
            fail(iLibrary.folder(),
                 Message(QStringLiteral("another catalogue is being made here; if not, remove %1")
                             .arg(iLock->fileName()))
                     .temporary());
        iBeforeFile();
    }
}

QString SiteFiles::at(const QByteArray& path) const {
    return iLibrary.at(QString::fromUtf8(path));
}

QString SiteFiles::list() const {
    return iLibrary.stateAt(QStringLiteral("catalogue.files"));
}

QString SiteFiles::journal() const {
    return iLibrary.stateAt(QStringLiteral("catalogue.journal"));
}

// Lines with digest, size, time and path.
void SiteFiles::readList() {
    QFile file(list());
    if (!file.open(QIODevice::ReadOnly))
        return;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().chopped(1);
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 4)
            iEntries[words[3]] = {QByteArray::fromHex(words[0]), words[1].toLongLong(),
                                  words[2].toLongLong()};
    }
}

// What a run that did not come to its end was about to write.
void SiteFiles::readJournal() {
    QFile file(journal());
    if (!file.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray& path : file.readAll().split('\n')) {
        if (path.isEmpty())
            continue;
        QFile::remove(Files::temporaryPath(at(path)));
        iEntries.insert(path, iEntries.value(path)); // as ours
    }
}

void SiteFiles::note(const QByteArray& path) {
    const QByteArray line = path + '\n';
    if (iJournal.write(line) != line.size())
        fail(journal(), Message::ofLastSystemError());
}

void SiteFiles::claim(const QByteArray& path) const {
    if (!iOverwritesForeign && !iEntries.contains(path) && stateOf(at(path)).isThere)
        fail(at(path), Message(QStringLiteral("is there already and not of a catalogue; --force "
                                              "overwrites it")));
}

bool SiteFiles::isUnchanged(Entry& entry, const QByteArray& path, const QByteArray& digest,
                            qint64 size) {
    const State state = stateOf(at(path));
    if (!state.isThere || state.size != size)
        return false;
    const bool isAsListed =
        entry.digest == digest && entry.size == state.size && entry.modified == state.modified;
    // Copied libraries have other times.
    if (!isAsListed && digestOfFile(at(path)) != digest)
        return false;
    entry = {digest, state.size, state.modified, true};
    return true;
}

void SiteFiles::put(const QByteArray& path, const QByteArray& content) {
    iBeforeFile();
    const QByteArray digest = digestOf(content);
    ++iCount;
    iBytes += content.size();
    auto entry = iEntries.find(path);
    Entry unknown;
    if (isUnchanged(entry == iEntries.end() ? unknown : *entry, path, digest, content.size())) {
        iEntries[path] = entry == iEntries.end() ? unknown : *entry;
        return;
    }
    write(path, content);
    added(path, digest);
}

void SiteFiles::take(const QByteArray& path, const QString& file) {
    const QByteArray digest = digestOfFile(file);
    const qint64 size = QFileInfo(file).size();
    ++iCount;
    iBytes += size;
    Entry entry = iEntries.value(path);
    if (isUnchanged(entry, path, digest, size)) {
        iEntries[path] = entry;
        QFile::remove(file);
        return;
    }
    claim(path);
    note(path);
    makeFolder(folderOf(path));
    if (::rename(QFile::encodeName(file).constData(), QFile::encodeName(at(path)).constData()) != 0)
        fail(at(path), Message::ofLastSystemError());
    added(path, digest);
}

void SiteFiles::write(const QByteArray& path, const QByteArray& content) {
    claim(path);
    note(path);
    makeFolder(folderOf(path));
    const std::span bytes(reinterpret_cast<const unsigned char*>(content.constData()),
                          std::size_t(content.size()));
    Message cause;
    if (!Files::writeWorkingFile(at(path), bytes, &cause))
        fail(at(path), cause);
}

void SiteFiles::added(const QByteArray& path, const QByteArray& digest) {
    const State state = stateOf(at(path));
    iEntries[path] = {digest, state.size, state.modified, true};
    ++iWritten;
}

void SiteFiles::makeFolder(const QByteArray& path) {
    if (iFolders.contains(path))
        return;
    errno = 0;
    if (!QDir().mkpath(at(path)))
        fail(at(path), Message::ofLastSystemError());
    iFolders.insert(path);
}

// One for all files: one for each would take minutes.
void SiteFiles::flush() const {
    const FileDescriptor folder(
        ::open(QFile::encodeName(iLibrary.folder()).constData(), O_RDONLY | O_CLOEXEC));
    if (iWritten > 0 && (!folder.isOpen() || ::syncfs(folder.number()) != 0))
        fail(iLibrary.folder(), Message::ofLastSystemError());
}

void SiteFiles::finish() {
    removeStale();
    writeList();
    iJournal.close();
    QFile::remove(journal());
}

void SiteFiles::removeStale() {
    QSet<QByteArray> folders;
    for (auto entry = iEntries.begin(); entry != iEntries.end();) {
        if (entry->isCurrent) {
            ++entry;
            continue;
        }
        const QString file = at(entry.key());
        const State state = stateOf(file);
        const bool isOurs = entry->digest.isEmpty() ||
                            (state.size == entry->size && state.modified == entry->modified) ||
                            digestOfFile(file) == entry->digest;
        if (state.isThere && isOurs) {
            if (!QFile::remove(file))
                fail(file, Message::ofLastSystemError());
            ++iRemoved;
            folders.insert(folderOf(entry.key()));
        }
        entry = iEntries.erase(entry);
    }
    for (QByteArray folder : folders) {
        // Up to the first that is not empty.
        while (!folder.isEmpty() && ::rmdir(QFile::encodeName(at(folder)).constData()) == 0)
            folder = folderOf(folder);
    }
}

void SiteFiles::writeList() {
    QList<QByteArray> paths = iEntries.keys();
    std::sort(paths.begin(), paths.end());
    QByteArray lines;
    for (const QByteArray& path : paths) {
        const Entry& entry = iEntries[path];
        lines += entry.digest.toHex() + ' ' + QByteArray::number(entry.size) + ' ' +
                 QByteArray::number(entry.modified) + ' ' + path + '\n';
    }
    Message cause;
    if (!Files::writeAtomically(list(), lines, &cause))
        fail(list(), cause);
}
