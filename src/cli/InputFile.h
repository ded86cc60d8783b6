#pragma once

#include "pages/OpenedPDF.h"

#include <QString>
#include <memory>

// The PDF file that a command was given. Throws CommandError when it can't be opened.
namespace InputFile {

std::shared_ptr<PDFDocument> open(const QString& path);

// The same for a document that is to be drawn. Ctrl-C ends the reading of it, now and later.
OpenedPDF openForDrawing(const QString& path);

} // namespace InputFile
