#pragma once

#include "base/ErrorKind.h"
#include "base/Message.h"

#include <QString>

// A PDF as a file, before anything reads it.
namespace PDFFile {

// Throws PlatformException when nothing can be read at that path: pdfFile for one that is missing,
// a folder, a device or unreadable, pdfOpen for an empty file.
void check(const QString& path);

// Throws PlatformException with the reason "PATH: CAUSE".
[[noreturn]] void failToOpen(const QString& path, const Message& cause,
                             ErrorKind kind = ErrorKind::pdfOpen);

} // namespace PDFFile
