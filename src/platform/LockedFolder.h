#pragma once

#include <QByteArray>
#include <QString>
#include <chrono>
#include <optional>

// Working folders that show whether the process that made them is still alive: it holds a lock on
// its folder, which the system lets go when the process ends, however it ends. A folder that was
// locked once carries the sticky bit, so one without it may be in use although nobody locks it; it
// stands on a file system without locks, or an older version made it.
namespace LockedFolder {

// Makes a folder, for this user only, and claims it until it is removed or the process ends. The
// path ends in "XXXXXX", which becomes something unique. Null with the reason in errno when the
// folder can't be made.
QString make(const QString& path);

// Removes a folder with its contents, and lets it go.
bool remove(const QString& path);

// Whether another process, or this one, holds an entry of an open folder.
bool isLocked(int parent, const QByteArray& name);

// Removes an entry of an open folder if it is a folder of this user that nobody but this user may
// read, and whose process is gone. For one that was never locked this is taken for granted once
// nothing in it has changed for that time; without a time it stays.
bool removeIfAbandoned(int parent, const QByteArray& name,
                       std::optional<std::chrono::seconds> unlockedFor);

} // namespace LockedFolder
