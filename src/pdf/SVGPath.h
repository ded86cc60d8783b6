#pragma once

#include "pdf/SVGText.h"

#include <mupdf/fitz.h>

// Writes the commands of a path: points are transformed, rounded to whole units, and relative to
// the point before.
void writePath(fz_context* ctx, const fz_path* path, const fz_matrix& matrix, SVGText& to);
