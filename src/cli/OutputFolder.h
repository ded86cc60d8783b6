#pragma once

#include "system/FileDescriptor.h"

#include <QByteArrayList>
#include <QString>

// The output folder of a book. It is created at once, so that an unwritable folder is reported
// before an hour of drawing; created folders are removed again unless keep() is called. While this
// object exists, no other run of the program can use the folder.
class OutputFolder {
public:
    // Throws CommandError when the folder can't be created or written, or is in use.
    explicit OutputFolder(const QString& path);
    ~OutputFolder();
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    const QString& path() const { return iPath; }
    void keep() { iKept = true; }
    // Throws CommandError when the folder is gone or has been replaced, for example because a drive
    // was unplugged.
    void checkPresence() const;

private:
    void make(const QString& path);
    void lock(const QString& path);
    void checkWritable(const QString& path) const;
    void removeCreated();

    QString iPath;
    QByteArrayList iMade; // folders that were created, innermost first
    FileDescriptor iLock;
    bool iKept = false;
};
