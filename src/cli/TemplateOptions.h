#pragma once

#include "template/FlashTemplate.h"

#include <QString>
#include <QStringList>
#include <memory>

struct PublishOptions;

// Handles the options that name templates, styles and properties.
namespace TemplateOptions {

// Names of the templates in the library (folders with a template file), sorted.
QStringList templateNames();

// Throws CommandError when there are no templates.
void checkLibrary();

// Names of a template's styles, sorted.
QStringList styleNames(const QString& templateName);

// The choices of a list property.
QStringList choices(const FlashTemplateProperty& property);

// Loads a template, and a style when its name is not empty. Throws CommandError when either does
// not exist or the template is damaged.
std::shared_ptr<FlashTemplate> load(const QString& templateName, const QString& styleName);

// Applies a settings file. Throws CommandError when it can't be read.
void applySettingsFile(FlashTemplate& tmpl, const QString& path);

// Applies one "key=value". Throws CommandError for an unknown key, a value that the property can't
// take, or a file that does not exist.
void applyAssignment(FlashTemplate& tmpl, const QString& assignment);

// The template of a book with all that is set: first what the document asks for, then what the
// project and the user do.
std::shared_ptr<FlashTemplate> prepared(const PublishOptions& options, bool isRightToLeft);

} // namespace TemplateOptions
