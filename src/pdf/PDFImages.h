#pragma once

#include <mupdf/fitz.h>
#include <span>

// The file of an image that is a JPEG file whose decoded bytes are the image's samples; empty for
// others and for damaged ones. Owned by the image. Never raises MuPDF errors.
std::span<const unsigned char> plainJPEG(fz_context* ctx, fz_image* image);

// Makes a draw device scale images with SIMD code (libjpeg-turbo, libyuv), where most of the time
// of a scanned or illustrated page is spent. Images that need more than that (masks, enlargement,
// skew, unusual colour spaces) are left to MuPDF.
void scaleImagesFast(fz_device* drawDevice);
