#pragma once

#include <QString>

// Checks that file names from untrusted sources stay inside their folder.
namespace Confinement {

// Whether a path that begins with the folder's path stays inside the folder when opened, after
// resolving ".." and symbolic links. Also works for files that do not exist. The folder itself may
// be reached through links.
bool contains(const QString& folder, const QString& path);

} // namespace Confinement
