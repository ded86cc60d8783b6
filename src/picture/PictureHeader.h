#pragma once

#include <QByteArrayView>
#include <QSize>

// What the first bytes of a picture file say. Empty for files of another kind, and damaged ones.
namespace PictureHeader {

QSize sizeOfJPEG(QByteArrayView head);
QSize sizeOfPNG(QByteArrayView head);

} // namespace PictureHeader
