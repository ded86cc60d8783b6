#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

// Removes folders recursively where other users may have write access: symbolic links are removed,
// never followed, and mounted file systems are left alone.
namespace FolderRemoval {

// Removes a folder by its path; links in the path leading to it are followed as usual. True when
// nothing of it is left.
bool remove(const QString& path);

// Removes an entry, file or folder, of an open folder.
bool removeEntry(int folder, const QByteArray& name);

// Removes the contents of an open folder. True when it is empty afterwards.
bool empty(int folder);

// Lets its owner empty an open folder that was made read-only.
void allowChanges(int folder);

// The names of the entries of an open folder, in no particular order; null, with the cause in
// errno, when not all could be read.
std::optional<std::vector<QByteArray>> namesIn(int folder);

} // namespace FolderRemoval
