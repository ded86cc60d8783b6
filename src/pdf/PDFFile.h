#pragma once

#include "base/Message.h"

#include <QString>

// A PDF as a file, before anything reads it.
namespace PDFFile {

// Throws PlatformException (pdfOpen) when nothing can be read at that path: missing, a folder, a
// device, unreadable, empty.
void check(const QString& path);

// Throws PlatformException (pdfOpen) with the reason "PATH: CAUSE".
[[noreturn]] void failToOpen(const QString& path, const Message& cause);

} // namespace PDFFile
