#pragma once

#include <QString>
#include <QStringList>

namespace FolderList {

// Paths of all folders beneath one, at every depth, hidden ones included and a folder before its
// contents, sorted by name within a folder. Links are not followed. Empty for a missing folder.
QStringList foldersBeneath(const QString& folder);

} // namespace FolderList
