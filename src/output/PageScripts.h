#pragma once

#include <QString>

// The scripts of an HTML page, as the content security policy of a page names them.
namespace PageScripts {

// The sources, separated by spaces, that allow the inline scripts and event handlers of a
// template's page, the servers that they name and that it loads scripts from, and in the latter
// case all that those scripts load by https. Texts that are put into the page later are not allowed
// to run, whatever they contain.
QString sources(const QString& pageTemplate);

// The source that allows an inline script.
QString source(const QString& script);

// Whether these sources allow all that the page's scripts and handlers do: none has a placeholder,
// and none evaluates texts, writes markup or is a link.
bool allowAll(const QString& pageTemplate);

} // namespace PageScripts
