#pragma once

#include <QString>
#include <pugixml.hpp>

namespace XMLText {

// All text within an element, CDATA sections and nested elements included, comments not; never
// null. Nesting of any depth is safe.
QString textOf(const pugi::xml_node& element);

} // namespace XMLText
