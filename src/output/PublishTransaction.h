#pragma once

#include "platform/Message.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

// The changes that one publish makes to a folder, made all at once at its end or not at all. New
// content is staged in a hidden folder inside the folder, which a later transaction clears away if
// this process dies. Every function but the destructor throws PlatformException with the file and
// the cause in its reason; the folder is then as it was before.
//
// The folder itself may be reached through symbolic links. Beneath it none is followed: one that
// lies where a file or a folder is to be is replaced.
class PublishTransaction {
public:
    // The order in which files are put in place: a book is never seen with a configuration or a
    // page that speaks of files not there yet.
    enum class Phase { contents, configuration, page };

    // What a copy may be: another name for a file that nothing changes in place, or a file of its
    // own.
    enum class Copy { independent, mayHardLink };

    // What a commit did. A file that already lay there with the same bytes is left alone, so that
    // it keeps its date and whoever copies the book elsewhere has less to copy.
    struct Counts {
        int written = 0;
        int unchanged = 0;
        int removed = 0;
    };

    // Makes the folder if it is missing.
    explicit PublishTransaction(const QString& folder);
    // Unless a commit came to its end, undoes all that was done.
    ~PublishTransaction();
    PublishTransaction(const PublishTransaction&) = delete;
    PublishTransaction& operator=(const PublishTransaction&) = delete;

    // Paths are full paths (or relative to the current folder) beneath the transaction's folder.
    // Folders for staged files need not be made.
    void makeFolder(const QString& path);
    void copy(const QString& source, const QString& target, Copy kind,
              Phase phase = Phase::contents);
    void write(const QString& target, const QByteArray& data, Phase phase = Phase::contents);
    // A path where the caller writes the target's new content. What was staged for it is dropped.
    QString stage(const QString& target, Phase phase = Phase::contents);
    void remove(const QString& target);

    // Whether the file or folder will be there after a commit.
    bool willExist(const QString& path) const;
    // Where new content lies that was staged for a file; null when there is none.
    QString stagedFile(const QString& path) const;
    bool writes(const QString& path) const { return !stagedFile(path).isNull(); }
    // All such files, in the order in which they were first spoken of: where they are to be, and
    // where their new content lies until then.
    std::vector<std::pair<QString, QString>> stagedFiles() const;
    // The same, and forgets all changes so far; the files stay as long as the transaction lives.
    std::vector<std::pair<QString, QString>> takeStagedFiles();

    void commit();
    const Counts& counts() const { return iCounts; }

    [[noreturn]] static void fail(const QString& path, const Message& cause);

private:
    struct Change {
        QString target;
        QString staged; // null for a removal
        Phase phase = Phase::contents;
    };
    struct Undo {
        QString target;
        QString backup; // null when there was no such file
        bool isFolder = false;
    };

    void preserveBackups() const;
    void makeRoot(const QString& path);
    void makeFolderNow(const QString& path);
    // Moves what is there into the hidden folder.
    void moveToStaging(const QString& path);
    // For what is to be replaced: so it never goes missing, and can come back. Null where a thing
    // that is no file can't have one.
    QString makeBackup(const QString& path);
    bool isBeneath(const QString& path) const;
    bool isBehindLink(const QString& path) const;
    QString newName();
    Change& changeOf(const QString& target);
    bool isUpToDate(const Change& change) const;
    void install(const Change& change);
    void removeTarget(const Change& change);
    // False when an earlier file could not be put back.
    bool rollBack();
    void removeCreatedRoots();

    QString iFolder;
    QString iStaging;
    int iNameCount = 0;
    std::vector<Change> iChanges;
    QHash<QString, std::size_t> iIndexOfTarget;
    QStringList iFoldersToMake;
    QStringList iCreatedRoots;
    std::vector<Undo> iDone;
    Counts iCounts;
    bool iCommitted = false;
};
