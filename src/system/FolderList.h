#pragma once

#include <QString>
#include <QStringList>

namespace FolderList {

// Paths of all folders below the given one, recursively, including hidden ones; each folder before
// its contents, sorted by name. Symbolic links are not followed. Empty when the folder does not
// exist.
QStringList foldersBeneath(const QString& folder);

} // namespace FolderList
