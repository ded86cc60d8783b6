#pragma once

#include "pdf/SVGText.h"

#include <mupdf/fitz.h>

// Outlines of glyphs as texts that pack to three quarters of the bytes of SVG paths. A number is a
// letter: 0, -1, 1, -2 and so on are counted from "'" on. Below that are the commands: "!" moves,
// '"' draws a line, "#" a horizontal and "$" a vertical one, "%" a curve, "&" closes the path. They
// stand before their first numbers only, except moves. Every point is relative to the one before
// it, control points included.
namespace GlyphOutline {

constexpr unsigned firstNumber = '\'';

// Letters from here on are no characters of their own in UTF-16.
constexpr unsigned endOfLetters = 0xD800;

// Points are rounded after the matrix has been applied. False for an outline with numbers that are
// too large.
bool write(fz_context* ctx, const fz_path* path, const fz_matrix& matrix, SVGText& to);

} // namespace GlyphOutline
