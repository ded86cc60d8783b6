#pragma once

#include <QString>

// The folder that a book goes into. It is made at once, so that a folder that can't be written
// shows before an hour of drawing; unless it is kept, whatever had to be made is removed again.
// While this lives, no other run of the program gets the same folder.
class OutputFolder {
public:
    // Throws CommandError when the folder can't be made or written, or is in use.
    explicit OutputFolder(const QString& path);
    ~OutputFolder();
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    const QString& path() const { return iPath; }
    void keep() { iKept = true; }
    // Throws CommandError when the folder is gone, or another one lies in its place: a share or a
    // memory stick was taken away, say.
    void checkPresence() const;

private:
    void make(const QString& path);
    void lock(const QString& path);
    void checkWritable(const QString& path) const;
    void removeCreated();

    QString iPath;
    QString iFirstMade; // the outermost folder that did not exist; null when all did
    int iLock = -1;
    bool iKept = false;
};
