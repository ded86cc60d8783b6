#pragma once

#include <QString>
#include <pugixml.hpp>

namespace XMLText {

// All text within an element, CDATA sections and nested elements included, comments not; never
// null. Nesting of any depth is safe.
QString textOf(const pugi::xml_node& element);

// The text without the characters that XML 1.0 can't hold: most control characters, lone
// surrogates and non-characters of the basic plane.
QString legal(const QString& text);

} // namespace XMLText
