#pragma once

#include <QString>

// Hidden working folders inside the folder that a publish changes. The lock, and the process ID in
// the name, show a later publish whether one is still in use.
namespace StagingFolder {

// Creates one and returns its path, or a null text with the cause in errno.
QString make(const QString& inFolder);

// Removes one with its contents.
void remove(const QString& path);

// Renames one whose commit could not be undone to "folvero-rescued-PID", so that no later run
// removes the earlier files in it, and logs where they are. False when it keeps its name; then its
// journal stays, too, and a later run tries again.
bool rescue(const QString& path);

// Whether there is one whose process was killed while it changed the folder.
bool hasUnfinished(const QString& inFolder);

// Undoes what processes that were killed had begun to change, then removes their staging folders.
// Waits for one that is changing the folder at this moment. Throws PlatformException when the
// earlier files can neither be put back nor kept.
void removeStale(const QString& inFolder);

} // namespace StagingFolder
