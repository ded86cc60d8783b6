#pragma once

#include <QString>

// Hidden working folders inside the folder that a publish changes. The lock, and the process ID in
// the name, show a later publish whether one is still in use.
namespace StagingFolder {

// Creates one and returns its path, or a null text with the cause in errno.
QString make(const QString& inFolder);

// Removes one with its contents.
void remove(const QString& path);

// Whether there is one whose process was killed while it changed the folder.
bool hasUnfinished(const QString& inFolder);

// Undoes what processes that were killed had begun to change, then removes their staging folders.
// Waits for one that is changing the folder at this moment. Earlier files that can't be put back,
// and files of others that can't, are rescued. Throws PlatformException when they can't.
void removeStale(const QString& inFolder);

// Keeps a staging folder for the user, as "folvero-rescued-PID" beside it, which is logged. False
// when it has to keep its name.
bool rescue(const QString& path);

} // namespace StagingFolder
