#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

// Applies the changes of one publish to a folder, all at its end or none. New content is staged in
// a hidden folder inside it; if this process dies, a later transaction removes that. Every function
// but the destructor throws PlatformException with the file and the cause as its reason; the folder
// is unchanged then.
//
// The folder itself may be reached through symbolic links. Links below it are never followed: one
// in place of a file or folder is replaced.
class PublishTransaction {
public:
    // The commit order: a reader never sees a configuration or a page that refers to files which
    // are not there yet.
    enum class Phase { contents, configuration, page };

    // How a file may be copied: as a hard link, if it is never modified in place, or as an
    // independent file.
    enum class Copy { independent, mayHardLink };

    // What a commit did. An existing file with the same content is left alone, so that it keeps its
    // modification time and syncing the book elsewhere copies less.
    struct Counts {
        int written = 0;
        int unchanged = 0;
        int removed = 0;
        qint64 bytes = 0; // of the files that were written or unchanged
    };

    // Creates the folder if it is missing. workingFolder, if not null, is changed in its place, to
    // be moved there afterwards: paths, those in errors included, are still below the folder.
    explicit PublishTransaction(const QString& folder, const QString& workingFolder = {});
    // Rolls back unless commit() succeeded.
    ~PublishTransaction();
    PublishTransaction(const PublishTransaction&) = delete;
    PublishTransaction& operator=(const PublishTransaction&) = delete;

    // Paths are absolute (or relative to the current folder) and below the transaction's folder.
    // Parent folders of staged files are created automatically.
    void makeFolder(const QString& path);
    void copy(const QString& source, const QString& target, Copy kind,
              Phase phase = Phase::contents);
    void write(const QString& target, const QByteArray& data, Phase phase = Phase::contents);
    // Returns the path to which the caller writes the target's new content. Discards anything
    // staged for it before.
    QString stage(const QString& target, Phase phase = Phase::contents);
    void remove(const QString& target);

    // Whether the file or folder will exist after a commit.
    bool willExist(const QString& path) const;
    // The path of the content staged for a file; null when there is none.
    QString stagedFile(const QString& path) const;
    bool writes(const QString& path) const { return !stagedFile(path).isNull(); }
    // All staged files, in staging order: target path and staged path.
    std::vector<std::pair<QString, QString>> stagedFiles() const;

    void commit();
    const Counts& counts() const { return iCounts; }

    [[noreturn]] static void fail(const QString& path, const Message& cause);
    // A file that was made for the book.
    static QByteArray contents(const QString& path);

private:
    struct Change {
        QString target;
        QString staged; // null for a removal
        Phase phase = Phase::contents;
    };
    struct Undo {
        QString target;
        QString backup; // null when the file did not exist
        bool isFolder = false;
    };

    // Translates between the folder and the working folder; returns a clean path.
    QString onDisk(const QString& path) const;
    [[noreturn]] void failAt(const QString& pathOnDisk, const Message& cause) const;
    [[noreturn]] void failWithErrno(const QString& pathOnDisk) const;
    void preserveBackups() const;
    void makeRoot(const QString& path);
    void makeFolderNow(const QString& path);
    // Moves an existing entry into the staging folder.
    void moveToStaging(const QString& path);
    // Keeps a hard link or copy of a file that is about to be replaced, so that it never goes
    // missing and can be restored. Null where other kinds of entries can't have one.
    QString makeBackup(const QString& path);
    bool isBeneath(const QString& path) const;
    bool isBehindLink(const QString& path) const;
    QString newName();
    // Writes what is staged to disk.
    void flush() const;
    Change& changeOf(const QString& target);
    bool isUpToDate(const Change& change) const;
    void install(const Change& change);
    void removeTarget(const Change& change);
    // False when an existing file could not be restored.
    bool rollBack();
    void removeCreatedRoots();

    QString iNamedFolder;
    QString iFolder; // the one that is changed; all other members are about it
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
