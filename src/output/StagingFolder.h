#pragma once

#include <QString>

// Hidden working folders inside the folder that a publish changes. The lock, and the process ID in
// the name, show a later publish whether one is still in use.
namespace StagingFolder {

// Creates one and returns its path, or a null text with the cause in errno.
QString make(const QString& inFolder);

// Removes one with its contents.
void remove(const QString& path);

// Whether there is one whose process is gone: it was killed while it changed the folder.
bool hasStale(const QString& inFolder);

// Removes those whose process is gone.
void removeStale(const QString& inFolder);

} // namespace StagingFolder
