#pragma once

#include "platform/PageBitmap.h"

#include <QByteArray>

// Encodes page pictures as WebP. Throws PlatformException "WebPEncodeFailed".
namespace WebPEncoder {

// The longest side that the format can hold.
inline constexpr int maxSide = 16'383;

// Every pixel as it is: small for text and drawings, large for photographs.
QByteArray lossless(const PageBitmap& bitmap);

// quality is 0 (smallest) to 100.
QByteArray lossy(const PageBitmap& bitmap, float quality);

// The same of the picture at another size, in pixels.
QByteArray reduced(const PageBitmap& bitmap, int width, int height, float quality);

// How much of a picture lossless encoding would spare: the share of pixels that are like the one to
// their left, 0 to 1.
double evenness(const PageBitmap& bitmap);

} // namespace WebPEncoder
