#pragma once

#include <QByteArray>

// Ways to damage a valid PDF file.
namespace PDFDamage {

// The file's first part; 0.5 keeps half of it.
QByteArray truncated(const QByteArray& file, double fraction);
// Every entry of the cross-reference table and the pointer to the table are wrong; the objects are
// intact, so a reader can find them by scanning the file.
QByteArray withWrongXref(const QByteArray& file);
// Removes table and trailer.
QByteArray withoutTrailer(const QByteArray& file);

} // namespace PDFDamage
