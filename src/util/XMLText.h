#pragma once

#include <QString>
#include <pugixml.hpp>

namespace XMLText {

// All text within an element, including CDATA sections and nested elements but not comments; never
// null. Works for any nesting depth.
QString textOf(const pugi::xml_node& element);

// The text without characters that XML 1.0 does not allow: most control characters, lone surrogates
// and non-characters of the BMP.
QString legal(const QString& text);

} // namespace XMLText
