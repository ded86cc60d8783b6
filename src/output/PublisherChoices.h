#pragma once

#include "base/Message.h"

#include <QString>
#include <pugixml.hpp>

class FlashTemplate;
struct Book;

// What the publisher decides for the readers of a book, by properties of the template: logo,
// buttons, first view, accent colour, download. A null template decides nothing.
namespace PublisherChoices {

// Whether readers are to have the imported document, as the template's settings say.
bool offerDocument(const FlashTemplate* flashTemplate);

// Why the document is not offered although it should be: it opens with a password only. Null for
// no reason.
Message documentLeftOut(const FlashTemplate* flashTemplate, const Book& book);

// Path in the book of the document that readers may download: the imported one where the template
// offers it. Empty for none, and for one that is left out.
QString documentPath(const FlashTemplate* flashTemplate, const Book& book);

// Appends an element for each choice that differs from what books do by themselves, so that others
// have the same configuration as before there were choices. document: as above, empty for none.
void append(pugi::xml_node properties, const FlashTemplate* flashTemplate, const QString& document);

} // namespace PublisherChoices
