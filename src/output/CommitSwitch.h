#pragma once

#include "base/Message.h"
#include "system/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <vector>

// The moment of a commit: a few renames that exchange entries of a folder for those prepared in
// its staging folder. Before it, the staging folder's subfolder "swap" has the new entries;
// afterwards "swap" and "away" have the earlier ones. A journal in the staging folder lists the
// renames, so that another process can undo those that were done.
//
// Entries are recognised by inode and time of birth, so undoing never touches what somebody else
// has written there since. The const functions allocate no memory and take no lock: the guard calls
// them after fork().
class CommitSwitch {
public:
    struct Identity {
        quint64 inode = 0; // 0 for no entry
        qint64 born = 0;   // in nanoseconds; 0 where file systems don't record it
        bool operator==(const Identity&) const = default;
        explicit operator bool() const { return inode != 0; }
    };
    struct Step {
        QByteArray name;   // or path, in the folder, and in "swap" or "away"
        Identity added;    // none when an entry is removed
        Identity replaced; // none when there is none
    };

    // Of open folders, which must stay open. Creates the subfolders if they are missing. Where it
    // can't, isOpen() is false with the cause in errno, and every other function fails.
    CommitSwitch(int folder, int staging);
    bool isOpen() const { return iSwap.isOpen() && iAway.isOpen(); }

    // Where new entries are prepared.
    static inline const QString swapName = QStringLiteral("swap");
    // The subfolders of the staging folder.
    static constexpr const char* places[]{"swap", "away"};
    int swapFolder() const { return iSwap.number(); }
    // All descriptors that the const functions use.
    std::vector<int> descriptors() const;

    // Adds a step for an entry of "swap", or for the removal of one. The entry may be in a
    // subfolder that both the folder and "swap" have. Links on the way are not followed.
    bool addReplacement(const QByteArray& name);
    void addRemoval(const QByteArray& name);
    void clear() { iSteps.clear(); }
    const std::vector<Step>& steps() const { return iSteps; }

    // Takes all steps in order. Returns the one that failed, with the cause in errno, or null.
    const Step* apply() const;
    // Whether all steps have been taken.
    bool isDone() const;
    // Undoes all steps that were taken, the last one first. False when an earlier entry could not
    // be restored.
    bool undo() const;

    // The journal in a staging folder. write() replaces it, and fails with the cause in *error;
    // read() adds its steps, and is false when there is no valid one; remove() succeeds without
    // one.
    static bool hasJournal(const QString& staging);
    bool writeJournal(const QString& staging, Message* error) const;
    bool readJournal(const QString& staging);
    bool removeJournal() const;

    // Moves an entry to another folder. Fails where the name is taken, if the file system can do
    // that.
    static bool moveIn(int from, int to, const char* name);

private:
    void makeParentsInAway(const QByteArray& name) const;
    bool apply(const Step& step) const;
    bool exchange(const char* name) const;
    bool undo(const Step& step) const;
    bool putBack(int from, const char* name, bool isInTheWay) const;

    int iFolder;
    int iStaging;
    FileDescriptor iSwap;
    FileDescriptor iAway;
    std::vector<Step> iSteps;
};
