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

// The same notation for a colour as people write it: #rgb, #rrggbb, 0xRRGGBB, RRGGBB, or an English
// name. A null text for anything else.
QString hexRGBFromText(const QString& text);

} // namespace MyColorOper
