#pragma once

#include "pdf/PageBitmap.h"

#include <QByteArray>

// Encodes page bitmaps as WebP. Throws PlatformException.
namespace WebPEncoder {

// The longest side that the format allows.
inline constexpr int maxSide = 16'383;

// Lossless: small for text and drawings, large for photographs.
QByteArray lossless(const PageBitmap& bitmap);

// quality is 0 (smallest) to 100.
QByteArray lossy(const PageBitmap& bitmap, float quality);

// Lossy, scaled to another size in pixels.
QByteArray reduced(const PageBitmap& bitmap, int width, int height, float quality);

// Estimates how well lossless encoding works: the share of pixels equal to their left neighbour, 0
// to 1.
double evenness(const PageBitmap& bitmap);

} // namespace WebPEncoder
