#pragma once

#include <QString>

// Hidden working folders, made inside the folder that a publish changes. Their names carry the
// number of the process, which tells a later publish whether the folder is still in use.
namespace StagingFolder {

// Makes one and returns its path, or a null text with the reason in errno.
QString make(const QString& inFolder);

// Removes those of processes that are gone.
void removeStale(const QString& inFolder);

} // namespace StagingFolder
