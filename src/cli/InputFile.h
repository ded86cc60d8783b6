#pragma once

#include "drawing/SpareWorkers.h"

#include <QString>
#include <memory>

// Opens a command's PDF file. Throws CommandError when it can't be opened.
namespace InputFile {

std::shared_ptr<PDFDocument> open(const QString& path, const QByteArray& password);

// The same for drawing with that many page workers. Ctrl-C cancels reading, now and later.
OpenedPDF openForDrawing(const QString& path, const QByteArray& password, int jobs);

} // namespace InputFile
