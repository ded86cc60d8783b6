#pragma once

#include <QByteArray>

// Pages as SVG.
namespace VectorPage {

// The same picture in fewer bytes: glyphs are placed by two numbers instead of six, and numbers
// have no more digits than can be seen at the largest zoom. Takes the text that the PDF engine
// writes, one element a line; what it does not know stays as it is.
QByteArray compact(const QByteArray& svg);

} // namespace VectorPage
