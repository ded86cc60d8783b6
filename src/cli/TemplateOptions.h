#pragma once

#include "template/FlashTemplate.h"

#include <QString>
#include <QStringList>
#include <memory>

// Finding templates, styles and properties by the names that a user types.
namespace TemplateOptions {

// Names of the templates of the library (folders that hold a template file), sorted.
QStringList templateNames();

// Names of a template's styles, sorted.
QStringList styleNames(const QString& templateName);

// The first property with that key, or nullptr.
const FlashTemplateProperty* findProperty(const FlashTemplate& tmpl, const QString& key);

// The choices that a list property offers.
QStringList choices(const FlashTemplateProperty& property);

// Loads a template, with a style when its name is not empty. Throws CommandError when there is no
// such template or style or the template is damaged.
std::shared_ptr<FlashTemplate> load(const QString& templateName, const QString& styleName);

// Applies a settings file. Throws CommandError when it can't be read.
void applySettingsFile(FlashTemplate& tmpl, const QString& path);

// Applies one "key=value". Throws CommandError for an unknown key, a value that the property can't
// take, or a file that does not exist.
void applyAssignment(FlashTemplate& tmpl, const QString& assignment);

} // namespace TemplateOptions
