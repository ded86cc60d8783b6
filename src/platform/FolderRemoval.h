#pragma once

#include <QByteArray>
#include <QString>

// Removes folders with all that lies beneath them, where others may have put something there: a
// symbolic link goes as a link and is never followed, and what is mounted beneath stays.
namespace FolderRemoval {

// Of a folder by its path; the folders on the way to it are followed as usual. True when nothing is
// left of it.
bool remove(const QString& path);

// Of an entry of an open folder. The entry may be a file.
bool removeEntry(int folder, const QByteArray& name);

// Removes what an open folder holds. True when it is empty now.
bool empty(int folder);

} // namespace FolderRemoval
