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
// pages of templates from before there were such have none. And the page with references to these
// files in their places, all of them at one address that ends in "/". It lacks the script that
// requests the configuration early, which a start list replaces.
std::map<QString, QString> parts(const QString& page);
QString withReferences(const QString& page, const QString& address);

} // namespace WebPageTemplate
