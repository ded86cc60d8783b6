#pragma once

#include <QString>

// Private working folders in "/tmp", which all users of the machine share: what is found there may
// be put there by somebody else.
namespace TemporaryFolders {

// Makes "/tmp/NAME/temp.XXXXXX" and claims it for this process, after clearing away those that
// processes of this user have left behind. Where "/tmp/NAME" is in the hands of another user, or
// is closed to this one, the folder is "/tmp/NAME.temp.XXXXXX". Where no such folder can be made,
// one with that very name and six letters X, which is not claimed. Throws PlatformException when
// there is none of them.
QString make(const QString& name);

// Removes such a folder with what is in it.
void remove(const QString& path);

} // namespace TemporaryFolders
