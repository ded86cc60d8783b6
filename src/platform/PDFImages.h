#pragma once

#include <mupdf/fitz.h>

// Makes a drawing device bring images to their size on the page with the processor's vector
// instructions, where it would spend most of the time of a scanned or illustrated page. Images that
// need more than that (masks, enlargements, slanted placement, unusual colour) stay with the
// engine.
void scaleImagesFast(fz_device* drawDevice);
