#pragma once

#include <QString>

// The template library's texts in the user's language. Templates and styles are in English; texts
// of third-party templates are not translated.
namespace TemplateTexts {

// A property's title, explanation or caption, or one of its choices.
QString shown(const QString& text);

// Names of folders of the library. A template's name is capitalised.
QString templateName(const QString& tmplName);
QString styleName(const QString& styleName);

} // namespace TemplateTexts
