#pragma once

#include "platform/PDFDocument.h"

#include <QString>
#include <memory>

// The PDF file that a command was given.
namespace InputFile {

// Throws CommandError when it can't be opened. What is no file at all (a pipe, a device) is refused
// before it is read, since it may never end.
std::shared_ptr<PDFDocument> open(const QString& path);

} // namespace InputFile
