#pragma once

#include <QByteArray>
#include <QRect>
#include <span>

// Changes JPEG files without decoding them: nothing is lost, and it takes a fraction of the time.
// The other functions return an empty array for a file that they can't read.
namespace JPEGFile {

using Bytes = std::span<const unsigned char>;

// How the rows and columns of a picture lie after the change, in the order of TJXOP.
enum class Turn { none, flipX, flipY, transpose, transverse, clockwise, half, anticlockwise };

// Colour components that a PDF shows as they are: 1 for gray, 3 for colour; 0 for others, such as
// those of print, whose meaning is a matter of who wrote them.
int plainComponents(Bytes file);

// Without what says nothing about the pixels: browsers would turn a picture by its EXIF
// orientation.
QByteArray withoutMetadata(Bytes file);

// The part of the turned picture that a rectangle keeps. Empty also when that part does not begin
// at the edge of a block of the file, within a pixel, or the file's last blocks are incomplete and
// would come first.
QByteArray turned(Bytes file, Turn turn, const QRect& part);

} // namespace JPEGFile
