#pragma once

#include <QString>

// The words of the template library as the user reads them. Templates and styles are written in
// English; texts of templates that came from elsewhere stay as they are.
namespace TemplateTexts {

// A property's title, explanation or caption, or one of its choices.
QString shown(const QString& text);

// Names of folders of the library. A template's name is shown with capitals.
QString templateName(const QString& tmplName);
QString styleName(const QString& styleName);

} // namespace TemplateTexts
