#pragma once

#include "platform/PDFDocument.h"

#include <QString>
#include <memory>

// The PDF file that a command was given.
namespace InputFile {

// Throws CommandError when it can't be opened.
std::shared_ptr<PDFDocument> open(const QString& path);

} // namespace InputFile
