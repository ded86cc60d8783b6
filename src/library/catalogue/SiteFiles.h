#pragma once

#include "library/LibraryLayout.h"

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QSet>
#include <chrono>
#include <functional>
#include <memory>

class QLockFile;

// Writes the files of a catalogue into a library: only those whose content changed, each
// atomically, and removes those that a later catalogue does not have any more. Files that no
// catalogue wrote are neither overwritten nor removed. Which ones it wrote is kept in the library's
// state, and noted before a file appears, so that a killed run leaves none of unknown origin.
// Functions throw PlatformException for errors of the disk.
class SiteFiles {
public:
    // Reads the list. One catalogue at a time is made in a library: waits so long for another one.
    // beforeFile is called before each file that is put, and while waiting; it may throw.
    SiteFiles(const LibraryLayout& library, bool overwritesForeign, std::chrono::seconds patience,
              std::function<void()> beforeFile);
    ~SiteFiles();
    SiteFiles(const SiteFiles&) = delete;
    SiteFiles& operator=(const SiteFiles&) = delete;

    // Whether there was a catalogue, if only a part of one.
    bool hasEarlier() const { return !iEntries.isEmpty(); }

    // Throws when a file or folder of that path is there and not the catalogue's.
    void claim(const QByteArray& path) const;

    // Writes a file by its path in the library's folder.
    void put(const QByteArray& path, const QByteArray& content);
    // The same from a file, which is moved.
    void take(const QByteArray& path, const QString& file);

    // Makes sure that all of it survives a power failure.
    void flush() const;
    // Removes what was not put, and keeps the list.
    void finish();

    int written() const { return iWritten; }
    int removed() const { return iRemoved; }
    int count() const { return iCount; }
    qint64 bytes() const { return iBytes; }

private:
    struct Entry {
        QByteArray digest; // empty where a killed run may not have come to write it
        qint64 size = 0;
        qint64 modified = 0; // nanoseconds
        bool isCurrent = false;
    };

    void lock(std::chrono::seconds patience) const;
    void readList();
    void readJournal();
    void note(const QByteArray& path);
    bool isUnchanged(Entry& entry, const QByteArray& path, const QByteArray& digest, qint64 size);
    void write(const QByteArray& path, const QByteArray& content);
    void added(const QByteArray& path, const QByteArray& digest);
    void makeFolder(const QByteArray& path);
    void removeStale();
    void writeList();
    QString at(const QByteArray& path) const;
    QString list() const;
    QString journal() const;

    LibraryLayout iLibrary;
    bool iOverwritesForeign;
    std::function<void()> iBeforeFile;
    std::unique_ptr<QLockFile> iLock;
    QHash<QByteArray, Entry> iEntries;
    QSet<QByteArray> iFolders; // that exist
    QFile iJournal;
    int iWritten = 0;
    int iRemoved = 0;
    int iCount = 0;
    qint64 iBytes = 0;
};
