#pragma once

#include <QString>

// Keeps file names that others wrote within the folder that they belong to.
namespace Confinement {

// Whether a path that begins with a folder's stays in that folder when it is opened, whatever ".."
// and symbolic links it passes; so it does if the file is not there. The folder itself may be
// reached through links.
bool contains(const QString& folder, const QString& path);

} // namespace Confinement
