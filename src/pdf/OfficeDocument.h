#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// Documents of office programs, which LibreOffice turns into PDFs where it is installed.
namespace OfficeDocument {

// The extensions of their names, in small letters.
const QStringList& types();

// By its name: a text, a presentation, a sheet or a drawing.
bool isOne(const QString& path);

// The program that converts them; null when it is not installed.
QString converter();

// Writes a document's PDF to a new file, whose folder must hold nothing else of value: the program
// keeps its files there meanwhile. stopped is polled and cancels; it may be empty. Throws
// PlatformException whose reason names the document: pdfFile without the program, pdfOpen when it
// makes no PDF of it, readerTimeout, readStopped.
void convert(const QString& path, const QString& pdf, const std::function<bool()>& stopped);

} // namespace OfficeDocument
