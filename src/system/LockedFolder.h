#pragma once

#include "system/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <optional>

// Working folders locked by the process that made them. The kernel releases the lock when the
// process ends, however it ends. A folder that was locked once carries the sticky bit; one without
// it may be in use although it is not locked, since it is on a file system without locks or an
// older version made it.
namespace LockedFolder {

// Creates a folder that only this user can access, and locks it until it is removed or the process
// ends. The path must end in "XXXXXX", which is replaced to make it unique. Null, with the cause in
// errno, when the folder can't be created.
QString make(const QString& path);

// Removes a folder with its contents, and releases the lock.
bool remove(const QString& path);

// Releases the lock of a folder that is left for a later run.
void release(const QString& path);

// The folder's descriptor, which holds the lock; -1 when this process has not locked it.
int descriptor(const QString& path);

// Opens and locks an entry of an open folder if it is a folder and no process, including this one,
// has locked it. Not open otherwise, nor when it is gone once it is locked. Where the file system
// has no locks it is only opened.
FileDescriptor take(int parent, const QByteArray& name);

// Whether any process, including this one, has locked an entry of an open folder.
bool isLocked(int parent, const QByteArray& name);

// Removes an entry of an open folder if it is a folder that belongs to this user, that only this
// user can read, and whose process is gone. A folder that was never locked counts as abandoned when
// nothing in it has changed for unlockedFor; without that value it is kept.
bool removeIfAbandoned(int parent, const QByteArray& name,
                       std::optional<std::chrono::seconds> unlockedFor);

} // namespace LockedFolder
