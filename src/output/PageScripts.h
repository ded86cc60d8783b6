#pragma once

#include <QString>

// The scripts of an HTML page, as the content security policy of a page names them.
namespace PageScripts {

// The sources, separated by spaces, that allow the inline scripts and event handlers of a
// template's page, and the servers that it loads scripts from. Texts that are put into the page
// later are not allowed to run, whatever they contain.
QString sources(const QString& pageTemplate);

// The source that allows an inline script.
QString source(const QString& script);

// Whether these sources allow all scripts and handlers of the page: none has a placeholder.
bool allowAll(const QString& pageTemplate);

} // namespace PageScripts
