#include "output/CommitSwitch.h"

#include "system/Files.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr char journalName[] = "journal";
constexpr qint64 maxJournalBytes = 1 << 20;

QString journalOf(const QString& staging) {
    return Files::join(staging, QString::fromLatin1(journalName));
}

FileDescriptor subfolder(int parent, const char* name) {
    if (::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
        return FileDescriptor();
    return FileDescriptor(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

// Null also for an entry that can't be looked at.
CommitSwitch::Identity identityOf(int folder, const char* name) {
    struct statx info {};
    if (::statx(folder, name, AT_SYMLINK_NOFOLLOW, STATX_INO | STATX_BTIME, &info) != 0)
        return {};
    const bool isRecorded = (info.stx_mask & STATX_BTIME) != 0;
    return {info.stx_ino,
            isRecorded ? info.stx_btime.tv_sec * 1'000'000'000 + info.stx_btime.tv_nsec : 0};
}

bool isFolder(int parent, const char* name) {
    struct stat info {};
    return ::fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(info.st_mode);
}

bool move(int from, int to, const char* name) {
    return ::renameat(from, name, to, name) == 0;
}

// A journal may come with a folder of somebody else's.
bool isEntryName(const QByteArray& name) {
    return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') &&
           !name.contains('\0');
}

} // namespace

CommitSwitch::CommitSwitch(int folder, int staging)
    : iFolder(folder),
      iStaging(staging),
      iSwap(subfolder(staging, places[0])),
      iAway(subfolder(staging, places[1])) {}

bool CommitSwitch::moveIn(int from, int to, const char* name) {
    if (::renameat2(from, name, to, name, RENAME_NOREPLACE) == 0)
        return true;
    return errno != EEXIST && move(from, to, name);
}

std::vector<int> CommitSwitch::descriptors() const {
    return {iFolder, iStaging, iSwap.number(), iAway.number()};
}

bool CommitSwitch::addReplacement(const QByteArray& name) {
    const Identity added = identityOf(iSwap.number(), name.constData());
    if (added)
        iSteps.push_back({name, added, identityOf(iFolder, name.constData())});
    return bool(added);
}

void CommitSwitch::addRemoval(const QByteArray& name) {
    iSteps.push_back({name, {}, identityOf(iFolder, name.constData())});
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
    if (::renameat2(iSwap.number(), name, iFolder, name, RENAME_EXCHANGE) == 0)
        return true;
    // The file system can't, or the renames below fail, too. A hard link keeps an earlier file from
    // going missing even for a moment. Folders have none.
    const bool mayStay = !isFolder(iSwap.number(), name);
    const bool isKept = mayStay && ::linkat(iFolder, name, iAway.number(), name, 0) == 0;
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
        return ::renameat2(from, name, iFolder, name, RENAME_EXCHANGE) == 0;
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
        if (parts.size() != 5 || !isEntryName(name))
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
