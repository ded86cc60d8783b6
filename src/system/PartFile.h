#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>

// Files of the user's that are replaced as a whole. The temporary file beside one has always the
// same name, ".NAME.part", so that of a program that is killed meanwhile at most one is left, which
// the next one takes.
namespace PartFile {

// As Files::writeAtomically(). Keeps the permissions of an earlier file.
bool write(const QString& path, const QByteArray& data, Message* error);

// Removes the temporary file of that one, unless a program is writing it.
void removeRemains(const QString& path);

} // namespace PartFile
