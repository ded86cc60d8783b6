#pragma once

#include <QString>

// Private working folders in "/tmp", which all users share: anything found there may have been
// created by somebody else.
namespace TemporaryFolders {

// Creates "/tmp/NAME/temp.XXXXXX" and locks it, after removing stale ones of this user. If
// "/tmp/NAME" belongs to another user or is not accessible, the folder is "/tmp/NAME.temp.XXXXXX".
// If neither can be created or has room, it is "NAME.temp.XXXXXX" where TMPDIR says. If that fails,
// too, a folder with literally six letters X is used, without a lock. Throws
// PlatformException when that fails too.
QString make(const QString& name);

// Removes such a folder with its contents.
void remove(const QString& path);

} // namespace TemporaryFolders
