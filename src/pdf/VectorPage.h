#pragma once

#include <QByteArray>

// Pages as SVG.
namespace VectorPage {

// Makes an SVG file smaller: glyphs are placed with two numbers instead of six, and numbers have no
// more digits than are visible at the largest zoom. Expects MuPDF's output, one element per line;
// anything unknown is kept as is.
QByteArray compact(const QByteArray& svg);

} // namespace VectorPage
