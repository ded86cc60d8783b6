#pragma once

#include "platform/Message.h"

#include <QString>
#include <functional>
#include <memory>
#include <pugixml.hpp>

// Reads the XML of a template file.
namespace TemplateFile {

// Parses a file with all white space kept; one that is not well-formed is repaired and parsed once
// more. The encoding is the declared one. Entities that the file declares are resolved, see
// XMLEntities; nothing is fetched. Throws PlatformException with the cause, and the line where
// there is one, when neither attempt yields a document.
std::unique_ptr<pugi::xml_document> read(const QString& path);

// The first child element of that name. Throws PlatformException when there is none; the exception
// names the parent as the function describes it.
pugi::xml_node required(const pugi::xml_node& parent, const char* name,
                        const std::function<Message()>& describeParent);
// All text within that child; never null.
QString requiredText(const pugi::xml_node& parent, const char* name,
                     const std::function<Message()>& describeParent);

} // namespace TemplateFile
