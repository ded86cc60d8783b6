#pragma once

#include <QByteArrayView>
#include <QSize>

// What the first bytes of a picture file say. Empty for files of another kind, and damaged ones.
namespace PictureHeader {

QSize sizeOfJPEG(QByteArrayView head);
QSize sizeOfPNG(QByteArrayView head);

// Whether a file of that kind is a picture from the first to the last byte: nothing is hidden
// between or behind its parts. Their contents are not decoded.
bool isWholeJPEG(QByteArrayView file);
bool isWholePNG(QByteArrayView file);

} // namespace PictureHeader
