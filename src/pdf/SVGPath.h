#pragma once

#include "pdf/SVGText.h"

#include <mupdf/fitz.h>
#include <string_view>

// Writes the commands of a path: points are transformed, rounded to whole units, and relative to
// the point before.
void writePath(fz_context* ctx, const fz_path* path, const fz_matrix& matrix, SVGText& to);

// Whether the commands of a path draw a rectangle with upright sides.
bool isBox(std::string_view path);
