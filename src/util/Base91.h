#pragma once

#include <QByteArray>

// Bytes as printable ASCII that stands in scripts, and in script elements of a page, as it is: it
// needs no escapes there and can't close the element. Two letters are 13 bits, which takes 1.23
// times the bytes; base64 takes 1.33.
namespace Base91 {

// Texts of pieces can be joined when all but the last have a multiple of this many bytes.
inline constexpr qsizetype pieceBytes = 13;

QByteArray encode(const QByteArray& bytes);

// Length of the text of so many bytes.
qint64 encodedSize(qint64 bytes);

// Empty for a text that is none of these.
QByteArray decode(const QByteArray& text);

} // namespace Base91
