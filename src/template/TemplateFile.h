#pragma once

#include "base/Message.h"

#include <QString>
#include <functional>
#include <memory>
#include <pugixml.hpp>

// Reads the XML of a template file.
namespace TemplateFile {

// Parses a file with all white space preserved; one that is not well-formed is repaired and parsed
// again. The declared encoding is used. Entities declared in the file are expanded, see
// XMLEntities; nothing external is loaded. Throws PlatformException with the cause, and the line if
// known, when neither attempt succeeds.
std::unique_ptr<pugi::xml_document> read(const QString& path);

// The first child element of that name. Throws PlatformException when it is missing; the message
// uses describeParent() for the parent.
pugi::xml_node required(const pugi::xml_node& parent, const char* name,
                        const std::function<Message()>& describeParent);
// The text of that child; never null.
QString requiredText(const pugi::xml_node& parent, const char* name,
                     const std::function<Message()>& describeParent);

} // namespace TemplateFile
