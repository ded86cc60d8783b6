#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QMultiHash>
#include <QString>
#include <sys/stat.h>

// What a commit leaves in "swap" and "away" of its staging folder: the earlier edition, or the new
// one when it was undone. Other programs may have put or changed files there after they were
// compared or copied; those are not the commit's to delete. So it lists in the staging folder what
// it may delete before it changes anything. A file that is in the folder under the same path, too,
// by a hard link, may be deleted as well.
class RetiredEdition {
public:
    // Of open folders, which must stay open.
    RetiredEdition(int folder, int staging) : iFolder(folder), iStaging(staging) {}

    // Lists what there is, as it is now, at a path relative to an open folder: a file, or a folder
    // with all that it contains.
    void list(int root, const QByteArray& path);

    // The list in a staging folder. read() is false when there is none.
    bool write(const QString& staging, Message* error) const;
    bool read(const QString& staging);

    // Moves to the folder what is not listed. Returns the paths of what can't be moved, mostly
    // since the folder has something else of that name.
    QByteArrayList giveBack() { return visit(false); }
    // The same, and deletes the rest.
    QByteArrayList remove() { return visit(true); }

private:
    struct State {
        quint64 inode = 0;
        qint64 size = 0; // 0 for a folder, and its time
        qint64 written = 0;
        bool operator==(const State&) const = default;
    };

    static State stateOf(const struct stat& info);
    void listFolder(int parent, const char* name, const QByteArray& path);
    QByteArrayList visit(bool deletes);
    void visitFolder(int from, int to, const QByteArray& path);
    void visitEntry(int from, int to, const QByteArray& name, const QByteArray& path);
    bool visitSubfolder(int from, int to, const QByteArray& name, const QByteArray& path);

    int iFolder;
    int iStaging;
    QMultiHash<QByteArray, State> iListed;
    bool iDeletes = false;
    dev_t iDevice = 0; // other mounted file systems are left alone
    QByteArrayList iLeft;
};
