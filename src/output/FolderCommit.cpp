#include "output/FolderCommit.h"

#include "base/PlatformException.h"
#include "output/StagingFolder.h"
#include "system/Files.h"
#include "system/LockedFolder.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FileDescriptor opened(const QString& folder, int mode) {
    return FileDescriptor(
        ::open(QFile::encodeName(folder).constData(), mode | O_DIRECTORY | O_CLOEXEC));
}

// Some file systems can't, and a folder that may only be written can't be opened for it.
bool sync(int folder) {
    return ::fsync(folder) == 0 || errno == EINVAL || errno == EBADF || errno == ENOTSUP;
}

} // namespace

FolderCommit::FolderCommit(const QString& folder, const QString& namedFolder)
    : iFolder(folder), iNamedFolder(namedFolder) {
    StagingFolder::removeStale(iFolder);
    iStaging = StagingFolder::make(iFolder);
    if (iStaging.isNull())
        failWithErrno();
    try {
        open();
    } catch (...) {
        StagingFolder::remove(iStaging);
        throw;
    }
}

FolderCommit::~FolderCommit() {
    const bool isSettled = iCommitted || !iSwitch || iSwitch->undo();
    const bool isForgotten = isSettled && (!iSwitch || iSwitch->removeJournal());
    iGuard.reset();
    if (isForgotten && iPlanned && !iRetired->remove().isEmpty())
        StagingFolder::rescue(iStaging);
    else if (isForgotten)
        StagingFolder::remove(iStaging);
    else
        LockedFolder::release(iStaging); // a later run settles it by the journal
}

void FolderCommit::fail(const QString& name, const Message& cause) const {
    const QString path =
        iNamedFolder == u"." && !name.isEmpty() ? name : Files::join(iNamedFolder, name);
    throw PlatformException(ErrorKind::publishing, Message::about(path, cause));
}

void FolderCommit::failWithErrno(const QString& name) const {
    fail(name, Message::ofLastSystemError());
}

void FolderCommit::open() {
    iFolderNumber = opened(iFolder, O_RDONLY);
    if (!iFolderNumber.isOpen() && errno == EACCES)
        iFolderNumber = opened(iFolder, O_PATH);
    if (!iFolderNumber.isOpen())
        failWithErrno();
    if (LockedFolder::descriptor(iStaging) < 0)
        iStagingNumber = opened(iStaging, O_RDONLY);
    iRetired.emplace(folderNumber(), stagingNumber());
}

int FolderCommit::stagingNumber() const {
    return iStagingNumber.isOpen() ? iStagingNumber.number() : LockedFolder::descriptor(iStaging);
}

CommitSwitch& FolderCommit::steps() {
    if (!iSwitch && !iSwitch.emplace(folderNumber(), stagingNumber()).isOpen())
        failWithErrno();
    return *iSwitch;
}

void FolderCommit::mayDelete(const QString& name) {
    iRetired->list(folderNumber(), QFile::encodeName(name));
}

void FolderCommit::commit(const std::function<void()>& otherSteps) {
    if (!steps().steps().empty() && !exchange(bool(otherSteps))) {
        iGuard.reset();
        otherSteps();
        exchange(false);
    }
    iCommitted = true;
}

// False when the file system can't, if it may.
bool FolderCommit::exchange(bool mayRefuse) {
    writePlan();
    iGuard.emplace(*iSwitch);
    try {
        if (const auto* failed = iSwitch->apply()) {
            if (mayRefuse && errno == EXDEV && iSwitch->undo())
                return false;
            failWithErrno(QFile::decodeName(failed->name));
        }
        checkPresence();
        giveBack();
        if (!sync(folderNumber()))
            failWithErrno();
    } catch (const PlatformException& failure) {
        rollBack(failure);
    }
    return true;
}

// For the guard and later runs, which go by this if the program dies.
void FolderCommit::writePlan() {
    for (const CommitSwitch::Step& step : iSwitch->steps())
        iRetired->list(iSwitch->swapFolder(), step.name);
    Message error;
    if (!iRetired->write(iStaging, &error) || !iSwitch->writeJournal(iStaging, &error))
        fail({}, error);
    iPlanned = true;
    // All files at once: a flush for each of thousands takes longer than to make them.
    if (::syncfs(iSwitch->swapFolder()) != 0)
        failWithErrno();
}

void FolderCommit::giveBack() {
    const QByteArrayList left = iRetired->giveBack();
    if (!left.isEmpty())
        fail(QFile::decodeName(left.front()),
             Message::translate("FolveroOutput", "it was changed while the book was published")
                 .temporary());
}

void FolderCommit::rollBack(const PlatformException& failure) const {
    if (iSwitch->undo())
        throw failure;
    throw PlatformException(failure.kind(),
                            Message::translate("FolveroOutput",
                                               "%1; earlier files are in %2, and the next publish "
                                               "tries to put them back")
                                .arg(failure.message(), iStaging));
}

// A folder that is moved away or deleted can still be written through its descriptor.
void FolderCommit::checkPresence() const {
    struct stat there {};
    struct stat changed {};
    if (::stat(QFile::encodeName(iFolder).constData(), &there) != 0 ||
        ::fstat(folderNumber(), &changed) != 0)
        failWithErrno();
    if (there.st_dev != changed.st_dev || there.st_ino != changed.st_ino)
        fail({}, Message::ofSystemError(ENOENT));
}
