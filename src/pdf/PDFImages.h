#pragma once

#include <mupdf/fitz.h>

// Makes a draw device scale images with SIMD code (libjpeg-turbo, libyuv), where most of the time
// of a scanned or illustrated page is spent. Images that need more than that (masks, enlargement,
// skew, unusual colour spaces) are left to MuPDF.
void scaleImagesFast(fz_device* drawDevice);
