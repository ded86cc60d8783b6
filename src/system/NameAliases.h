#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>

// Paths with names that are not UTF-8, which QString can't hold. Such a path is replaced by an
// alias: a symbolic link in a temporary folder, which is removed when the program ends. The link's
// name shows the invalid bytes as letters of Windows-1252, or as "_" if any of them is none.
// Aliases are made before threads start; the other functions may be called from any.
namespace NameAliases {

// A path from the command line; relative ones in a folder with such a name get an alias too. Not
// null. Throws PlatformException when no alias can be made.
QString decoded(const QByteArray& path);

// A text that is not a path, with invalid bytes read in the same way.
QString text(const QByteArray& bytes);

// The path of a file for system calls, without aliases.
QByteArray encoded(const QString& path);

// Files::writeAtomically() for a path that may be an alias itself.
bool write(const QString& path, const QByteArray& data, Message* error);

// A text with the names that its aliases stand for: invalid bytes as \xE9, or as they are.
QString shown(QString text);
QByteArray unchanged(const QString& text);

} // namespace NameAliases
