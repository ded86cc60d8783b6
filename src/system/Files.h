#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>
#include <span>

// Operations on whole files that never leave a half-written file behind.
namespace Files {

// The whole file; null when it can't be read, with the cause in *error (when given).
QByteArray contents(const QString& path, Message* error = nullptr);

// The first bytes of a file, or all; null when it can't be read.
QByteArray beginning(const QString& path, qint64 mostBytes);

// Writes a temporary file beside the target and renames it over the target. On failure the old file
// is kept, the function returns false and sets *error (when given) to the cause.
bool writeAtomically(const QString& path, const QByteArray& data, Message* error = nullptr);

// The same for a file that must not be there yet: whatever has that name is kept, and the function
// returns false, also when that appears meanwhile. No reader ever sees a part of the file.
bool writeNew(const QString& path, const QByteArray& data, Message* error = nullptr);

// As writeAtomically(), but without fsync, for a working file that need not survive a power
// failure.
bool writeWorkingFile(const QString& path, std::span<const unsigned char> data,
                      Message* error = nullptr);

// The same with encoded names: of the file, and of the temporary one in the same folder.
bool replace(const QByteArray& name, const QByteArray& part, std::span<const unsigned char> data,
             Message* error = nullptr);

// The temporary path that writeWorkingFile() uses. A killed process leaves the file behind.
QString temporaryPath(const QString& path);

// Copies a file in the cheapest way that yields an independent file: a reflink (shared extents)
// where the file system supports it, a full copy otherwise. Fails when the target exists.
bool copy(const QString& source, const QString& target, Message* error = nullptr);

// The same from one open file into another. False with the cause in errno.
bool copyContents(int from, int to);

// As copy(), but may create a hard link. Only for sources that are never modified in place
// afterwards.
bool linkOrCopy(const QString& source, const QString& target, Message* error = nullptr);

// Whether two files have the same content; false when either can't be read.
bool haveSameContent(const QString& one, const QString& other);

// A digest of the content of a file, as text; empty when it can't be read or is no regular file.
QByteArray digest(const QString& path,
                  QCryptographicHash::Algorithm algorithm = QCryptographicHash::Blake2b_256);

// "FOLDER/NAME", whether or not the folder ends in a separator; FOLDER when the name is empty.
QString join(const QString& folder, const QString& name);

// The part after the last dot of the last path component; empty, not null, when there is none.
QString pathExtension(const QString& path);

// The last path component; a trailing separator is ignored.
QString lastPathComponent(const QString& path);

} // namespace Files
