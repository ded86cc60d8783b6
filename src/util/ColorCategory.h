#pragma once

#include <QColor>
#include <QString>

// Colours in the notation of templates and books: 0xRRGGBB.
namespace MyColorOper {

// Parses the hexadecimal number at the start of a text, with or without "0x"; bits above the lowest
// 24 are dropped. Opaque black when there is none.
QColor colorFromHexRGB(const QString& text);

// Lower case, without alpha; a null text for an invalid colour.
QString colorToHexRGB(const QColor& color);

} // namespace MyColorOper
