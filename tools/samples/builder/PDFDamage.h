#pragma once

#include <QByteArray>

// Ways to break the bytes of a sound PDF file.
namespace PDFDamage {

// The file's first part; 0.5 keeps half of it.
QByteArray truncated(const QByteArray& file, double fraction);
// Every entry of the cross-reference table and the pointer to the table are wrong; the objects are
// whole, so a reader can find them by looking through the file.
QByteArray withWrongXref(const QByteArray& file);
// Table and trailer are gone.
QByteArray withoutTrailer(const QByteArray& file);

} // namespace PDFDamage
