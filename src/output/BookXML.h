#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <memory>
#include <pugixml.hpp>
#include <vector>

class FlashTemplate;
class FlashTemplateProperty;

// The configuration of a book, not enciphered. Paths in it are relative to the folder "files". A
// null template has no values.
namespace BookXML {

struct PageURLs {
    QString normal;
    QString thumbnail;
};

// pageSize is in points; document: the path in the book of one to download, empty for none.
std::unique_ptr<pugi::xml_document> make(const FlashTemplate* flashTemplate,
                                         const std::vector<PageURLs>& pages, QSize pageSize,
                                         const QString& document = {});

// In UTF-8. format: of pugixml.
QByteArray text(const pugi::xml_document& configuration, unsigned format);

// As files and pages of a book contain it. format: of pugixml.
QByteArray enciphered(const pugi::xml_document& configuration, unsigned format);

// Appends an element with the template's value, or the default when it has none.
void appendValue(pugi::xml_node parent, const QString& nodeName, const FlashTemplate* flashTemplate,
                 const QString& key, const QString& defaultValue);

// Appends an "item" to element for each descendant of the property, parents first, without nesting.
void appendDescendants(pugi::xml_node element, const FlashTemplateProperty& property);

} // namespace BookXML
