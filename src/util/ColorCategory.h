#pragma once

#include <QColor>
#include <QString>

// Colours as templates and books write them: 0xRRGGBB.
namespace MyColorOper {

// Reads the hexadecimal number at the start of a text, with or without "0x"; bits above the lowest
// 24 are dropped. Opaque black when there is none.
QColor colorFromHexRGB(const QString& text);

// In lower case, without alpha; a null text for an invalid colour.
QString colorToHexRGB(const QColor& color);

} // namespace MyColorOper
