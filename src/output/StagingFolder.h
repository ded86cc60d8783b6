#pragma once

#include <QString>

// Hidden working folders, made inside the folder that a publish changes. The lock on one, and the
// number of its process in its name, tell a later publish whether it is still in use.
namespace StagingFolder {

// Makes one and returns its path, or a null text with the reason in errno.
QString make(const QString& inFolder);

// Removes one with what is in it.
void remove(const QString& path);

// Whether one is there whose process is gone: it was killed while it changed the folder.
bool hasStale(const QString& inFolder);

// Removes those of processes that are gone.
void removeStale(const QString& inFolder);

} // namespace StagingFolder
