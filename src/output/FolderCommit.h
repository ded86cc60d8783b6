#pragma once

#include "base/Message.h"
#include "output/CommitGuard.h"
#include "output/CommitSwitch.h"
#include "output/RetiredEdition.h"
#include "system/FileDescriptor.h"

#include <QString>
#include <functional>
#include <optional>

class PlatformException;

// Changes entries of a folder all at once or not at all, whenever this process may be killed: see
// CommitSwitch. New content is prepared in a hidden staging folder inside it; if this process dies,
// the next commit in that folder removes that. Every function but the destructor throws
// PlatformException with the file and the cause; the folder is unchanged then.
class FolderCommit {
public:
    // Ends what killed processes left in the folder. Errors name namedFolder in its place.
    FolderCommit(const QString& folder, const QString& namedFolder);
    // Rolls back unless commit() succeeded.
    ~FolderCommit();
    FolderCommit(const FolderCommit&) = delete;
    FolderCommit& operator=(const FolderCommit&) = delete;

    QString staging() const { return iStaging; }
    // Descriptors of both folders.
    int folderNumber() const { return iFolderNumber.number(); }
    int stagingNumber() const;
    // What is to be exchanged.
    CommitSwitch& steps();

    // To be called for each entry that is to be replaced or removed, before it is compared or
    // copied: what it is or contains now may be deleted by commit().
    void mayDelete(const QString& name);

    // Writes what was prepared to disk, takes all steps, and writes them to disk. What others have
    // put or changed in the entries since mayDelete() stays; where it can't, the commit fails.
    // Where the file system can't move a folder, as overlayfs, all is undone, and otherSteps (if
    // not null) has to replace the steps.
    void commit(const std::function<void()>& otherSteps = {});

private:
    void open();
    void writePlan();
    bool exchange(bool mayRefuse);
    void checkPresence() const;
    void giveBack();
    [[noreturn]] void rollBack(const PlatformException& failure) const;
    [[noreturn]] void fail(const QString& name, const Message& cause) const;
    [[noreturn]] void failWithErrno(const QString& name = {}) const;

    QString iFolder;
    QString iNamedFolder;
    QString iStaging;
    FileDescriptor iFolderNumber;
    FileDescriptor iStagingNumber; // when it is not locked
    std::optional<CommitSwitch> iSwitch;
    std::optional<RetiredEdition> iRetired;
    std::optional<CommitGuard> iGuard;
    bool iPlanned = false;
    bool iCommitted = false;
};
