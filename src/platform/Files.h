#pragma once

#include "platform/Message.h"

#include <QByteArray>
#include <QString>
#include <span>

// Whole-file operations that never leave a half-written file behind.
namespace Files {

// All of a file; null when it can't be read.
QByteArray contents(const QString& path);

// Writes beside the target and renames over it. On failure the old file stays, false comes back and
// *error (when given) tells why in words.
bool writeAtomically(const QString& path, const QByteArray& data, Message* error = nullptr);

// The same for a working file that need not survive a power cut: it does not wait for the disk.
bool writeWorkingFile(const QString& path, std::span<const unsigned char> data,
                      Message* error = nullptr);

// Where that is written before it gets its name. A process that is killed leaves it behind.
QString temporaryPath(const QString& path);

// Copies a file in the cheapest way that yields an independent file: a shared-extent clone where
// the file system has it, a copy otherwise. Fails when the target exists.
bool copy(const QString& source, const QString& target, Message* error = nullptr);

// As copy(), but may make a second name for the same file. Only for sources that nothing will
// change in place afterwards.
bool linkOrCopy(const QString& source, const QString& target, Message* error = nullptr);

// Whether two paths name files of the same bytes; false as well for what can't be read.
bool haveSameContent(const QString& one, const QString& other);

// "FOLDER/NAME" whether or not the folder ends in a separator; FOLDER when the name is empty.
QString join(const QString& folder, const QString& name);

// The part after the last dot of the last path component, or the empty text (not null).
QString pathExtension(const QString& path);

// The last path component; a trailing separator is ignored.
QString lastPathComponent(const QString& path);

} // namespace Files
