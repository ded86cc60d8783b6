#pragma once

#include "base/Message.h"
#include "output/FolderCommit.h"
#include "output/NextEdition.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

// Applies the changes of one publish to a folder, all at its end or none, by a FolderCommit. Every
// function but the destructor throws PlatformException with the file and the cause as its reason;
// the folder is unchanged then.
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

    using Counts = FileCounts;

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
    // The path relative to the folder; throws for one that is not below it.
    QString relative(const QString& path) const;
    QString named(const QString& relativePath) const;
    QString stagedPath(int name) const;
    void makeRoot(const QString& path);
    bool isBehindLink(const QString& relativePath) const;
    std::size_t indexOf(const QString& relativePath);
    void sortByPhase();
    void listEntries();
    void removeCreatedRoots();

    QString iNamedFolder;
    QString iFolder; // the one that is changed
    std::optional<FolderCommit> iCommit;
    int iNameCount = 0;
    std::vector<NextEdition::Change> iChanges;
    std::vector<Phase> iPhases; // of the changes
    QHash<QString, std::size_t> iIndexOfPath;
    QStringList iFoldersToMake;
    QStringList iCreatedRoots;
    Counts iCounts;
    bool iCommitted = false;
};
