#pragma once

#include <QString>

namespace XMLText {

// The text without the characters that XML 1.0 can't hold: most control characters, lone
// surrogates and non-characters of the basic plane.
QString legal(const QString& text);

} // namespace XMLText
