#include "output/CommitSwitch.h"

#include "system/Files.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr char journalName[] = "journal";
constexpr qint64 maxJournalBytes = 64 << 20; // a line for each file of a large book

QString journalOf(const QString& staging) {
    return Files::join(staging, QString::fromLatin1(journalName));
}

FileDescriptor subfolder(int parent, const char* name) {
    if (::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
        return FileDescriptor();
    return FileDescriptor(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

// An entry by its path in an open folder. Somebody else may have put links on the way.
class Entry {
public:
    Entry(int root, const char* path) : iFolder(root), iName(path) {
        while (const char* end = std::strchr(iName, '/')) {
            std::array<char, NAME_MAX + 1> part{};
            const auto length = std::min(std::size_t(end - iName), part.size() - 1);
            std::memcpy(part.data(), iName, length);
            iOpen = FileDescriptor(::openat(iFolder, part.data(), openParent));
            iFolder = iOpen.number();
            iName = end + 1;
        }
    }
    int folder() const { return iFolder; }
    const char* name() const { return iName; }

private:
    static constexpr int openParent = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

    FileDescriptor iOpen;
    int iFolder; // -1 where there is none
    const char* iName;
};

// Null also for an entry that can't be looked at.
CommitSwitch::Identity identityOf(int root, const char* path) {
    const Entry entry(root, path);
    struct statx info {};
    if (::statx(entry.folder(), entry.name(), AT_SYMLINK_NOFOLLOW, STATX_INO | STATX_BTIME,
                &info) != 0)
        return {};
    const bool isRecorded = (info.stx_mask & STATX_BTIME) != 0;
    return {info.stx_ino,
            isRecorded ? info.stx_btime.tv_sec * 1'000'000'000 + info.stx_btime.tv_nsec : 0};
}

bool isFolder(int root, const char* path) {
    const Entry entry(root, path);
    struct stat info {};
    return ::fstatat(entry.folder(), entry.name(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(info.st_mode);
}

bool move(int fromRoot, int toRoot, const char* path, unsigned flags = 0) {
    const Entry from(fromRoot, path);
    const Entry to(toRoot, path);
    return (flags == 0
                ? ::renameat(from.folder(), from.name(), to.folder(), to.name())
                : ::renameat2(from.folder(), from.name(), to.folder(), to.name(), flags)) == 0;
}

bool link(int fromRoot, int toRoot, const char* path) {
    const Entry from(fromRoot, path);
    const Entry to(toRoot, path);
    return ::linkat(from.folder(), from.name(), to.folder(), to.name(), 0) == 0;
}

// A journal may come with a folder of somebody else's.
bool isEntryPath(const QByteArray& path) {
    const QByteArrayList parts = path.split('/');
    return !path.contains('\0') &&
           std::none_of(parts.begin(), parts.end(), [](const QByteArray& part) {
               return part.isEmpty() || part == "." || part == "..";
           });
}

} // namespace

CommitSwitch::CommitSwitch(int folder, int staging)
    : iFolder(folder),
      iStaging(staging),
      iSwap(subfolder(staging, places[0])),
      iAway(subfolder(staging, places[1])) {}

bool CommitSwitch::moveIn(int from, int to, const char* name) {
    return move(from, to, name, RENAME_NOREPLACE) || (errno != EEXIST && move(from, to, name));
}

std::vector<int> CommitSwitch::descriptors() const {
    return {iFolder, iStaging, iSwap.number(), iAway.number()};
}

bool CommitSwitch::addReplacement(const QByteArray& name) {
    const Identity added = identityOf(iSwap.number(), name.constData());
    makeParentsInAway(name);
    if (added)
        iSteps.push_back({name, added, identityOf(iFolder, name.constData())});
    return bool(added);
}

void CommitSwitch::addRemoval(const QByteArray& name) {
    makeParentsInAway(name);
    iSteps.push_back({name, {}, identityOf(iFolder, name.constData())});
}

void CommitSwitch::makeParentsInAway(const QByteArray& name) const {
    for (auto end = name.indexOf('/'); end >= 0; end = name.indexOf('/', end + 1))
        (void)::mkdirat(iAway.number(), name.left(end).constData(), 0700);
}

const CommitSwitch::Step* CommitSwitch::apply() const {
    const auto failed = std::find_if(iSteps.begin(), iSteps.end(),
                                     [this](const Step& step) { return !apply(step); });
    return failed != iSteps.end() ? &*failed : nullptr;
}

bool CommitSwitch::apply(const Step& step) const {
    const char* name = step.name.constData();
    if (!step.added)
        return move(iFolder, iAway.number(), name);
    return step.replaced ? exchange(name) : moveIn(iSwap.number(), iFolder, name);
}

bool CommitSwitch::exchange(const char* name) const {
    if (move(iSwap.number(), iFolder, name, RENAME_EXCHANGE))
        return true;
    // The file system can't, or the renames below fail, too. A hard link keeps an earlier file from
    // going missing even for a moment. Folders have none.
    const bool mayStay = !isFolder(iSwap.number(), name);
    const bool isKept = mayStay && link(iFolder, iAway.number(), name);
    return (isKept || move(iFolder, iAway.number(), name)) && move(iSwap.number(), iFolder, name);
}

bool CommitSwitch::isDone() const {
    return std::all_of(iSteps.begin(), iSteps.end(), [this](const Step& step) {
        return identityOf(iFolder, step.name.constData()) == step.added;
    });
}

bool CommitSwitch::undo() const {
    bool isComplete = true;
    for (auto step = iSteps.rbegin(); step != iSteps.rend(); ++step)
        isComplete = undo(*step) && isComplete;
    return isComplete;
}

bool CommitSwitch::undo(const Step& step) const {
    const char* name = step.name.constData();
    const Identity now = identityOf(iFolder, name);
    if (now == step.replaced)
        return true;
    const bool isOurs = now && now == step.added;
    if (!step.replaced)
        return !isOurs || move(iFolder, iSwap.number(), name);
    if (now && !isOurs)
        return false;
    // What was exchanged is not what was to be replaced where somebody else was faster.
    for (const int place : {iSwap.number(), iAway.number()}) {
        const Identity earlier = identityOf(place, name);
        if (earlier && earlier != step.added)
            return putBack(place, name, isOurs);
    }
    return false;
}

bool CommitSwitch::putBack(int from, const char* name, bool isInTheWay) const {
    if (isInTheWay && from == iSwap.number())
        return move(from, iFolder, name, RENAME_EXCHANGE);
    // A file over a file.
    if (move(from, iFolder, name))
        return true;
    return isInTheWay && move(iFolder, iSwap.number(), name) && move(from, iFolder, name);
}

bool CommitSwitch::hasJournal(const QString& staging) {
    return QFileInfo(journalOf(staging)).isFile();
}

// A line for each step: what is added, what is replaced, and the name.
bool CommitSwitch::writeJournal(const QString& staging, Message* error) const {
    QByteArray text;
    for (const Step& step : iSteps) {
        for (const Identity& entry : {step.added, step.replaced})
            text += QByteArray::number(entry.inode) + ' ' + QByteArray::number(entry.born) + ' ';
        text += step.name.toPercentEncoding() + '\n';
    }
    return Files::writeWorkingFile(
        journalOf(staging),
        {reinterpret_cast<const unsigned char*>(text.constData()), std::size_t(text.size())},
        error);
}

bool CommitSwitch::readJournal(const QString& staging) {
    const QString path = journalOf(staging);
    if (!hasJournal(staging) || QFileInfo(path).size() > maxJournalBytes)
        return false;
    QByteArrayList lines = Files::contents(path).split('\n');
    if (lines.takeLast() != "")
        return false;
    for (const QByteArray& line : lines) {
        const QByteArrayList parts = line.split(' ');
        const QByteArray name = QByteArray::fromPercentEncoding(parts.value(4));
        if (parts.size() != 5 || !isEntryPath(name))
            return false;
        iSteps.push_back({name,
                          {parts[0].toULongLong(), parts[1].toLongLong()},
                          {parts[2].toULongLong(), parts[3].toLongLong()}});
    }
    return true;
}

bool CommitSwitch::removeJournal() const {
    return ::unlinkat(iStaging, journalName, 0) == 0 || errno == ENOENT;
}
