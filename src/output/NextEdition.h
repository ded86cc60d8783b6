#pragma once

#include "base/Message.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>
#include <sys/types.h>
#include <vector>

class CommitSwitch;

// What a commit does. An existing file with the same content is left alone, so that it keeps its
// modification time and syncing the book elsewhere copies less.
struct FileCounts {
    int written = 0;
    int unchanged = 0;
    int removed = 0;
    qint64 bytes = 0; // of the files that were written or unchanged
};

// Prepares what a commit changes in a folder, out of its readers' sight: each entry of the folder
// that changes is made anew in the staging folder. An entry that is a folder then has hard links to
// all of the earlier one that stays, files of others included. Where it has anything that can't be
// had twice, such as a folder of another user, its changed files are exchanged one by one instead.
// Everything throws PlatformException with the file and the cause.
class NextEdition {
public:
    // A file that is written or removed. Paths are relative to the folder.
    struct Change {
        QString path;
        int staged = 0; // the name in the staging folder of the new file; 0 for a removal
        bool isNeeded = true;
    };
    struct Places {
        QString folder;
        QString namedFolder; // in errors
        QString staging;
        int folderNumber = -1; // open descriptors
        int stagingNumber = -1;
    };

    // Changes are applied in their order, removals last; folders before files.
    NextEdition(Places places, std::vector<Change>& changes, const QStringList& folders);

    // Adds the steps of the commit. Moves staged files.
    void prepare(CommitSwitch& to);
    // Replaces the steps by others that exchange no folder.
    void changeInPlace(CommitSwitch& to);
    const FileCounts& counts() const { return iCounts; }

private:
    mode_t typeOf(const QString& path) const;
    mode_t typeOfFolder(const QString& path);
    void requireFolder(const QString& path);
    void compare(Change& change);
    bool isUpToDate(const Change& change, const struct stat& there,
                    const struct stat& staged) const;
    void addTop(const QString& path);
    bool makeFolder(const QString& top, int to) const;
    std::optional<Message> copyFolder(const QString& top, int to) const;
    QStringList foldersIn(const QString& top) const;
    void moveFiles(const QString& top, int to) const;
    void removeEmptied(const QString& top, int to) const;
    void addSteps(CommitSwitch& to);
    void addNewFolders(const QString& top, CommitSwitch& to);
    void addReplacement(const QString& path, CommitSwitch& to) const;
    bool isStep(const Change& change);
    void moveStaged(const Change& change, int to) const;
    [[noreturn]] void fail(const QString& path, const Message& cause) const;

    Places iPlaces;
    std::vector<Change>& iChanges;
    QHash<QString, std::size_t> iIndexOfPath; // of those that are needed
    QHash<QString, mode_t> iTypes; // of folders; 0 for those that are missing or behind a link
    QSet<QString> iFolders;        // that are to exist
    QStringList iTops;             // folders in the folder that change
    QSet<QString> iInPlace;        // those that are not exchanged
    FileCounts iCounts;
};
