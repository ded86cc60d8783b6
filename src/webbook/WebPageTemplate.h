#pragma once

#include <QString>
#include <map>

class FlashTemplate;

// The page of a template as a web book needs it.
namespace WebPageTemplate {

// The page's text with the places for what a web book adds; see PagePlaces. Pages of templates from
// before there were places get them at the elements where they belong, but none where there is no
// such element or the text is not filled in any more. Pages without a content security policy get
// one that allows the template's own scripts.
QString of(const FlashTemplate* flashTemplate);

// The parts of such a page that are the same in every book of the template, by paths in a book;
// pages of templates from before there were such have none.
std::map<QString, QString> parts(const QString& page);

// The page of a book with a start list, which lacks the script that requests the configuration
// early. With references to files in the places of its parts, all of them at one address that ends
// in "/", or with the parts.
QString withReferences(const QString& page, const QString& address);
QString withStartList(const QString& page);

} // namespace WebPageTemplate
