#include "project/ProjectValues.h"

#include "template/TemplateDefaults.h"

#include <QFileInfo>
#include <QSet>

namespace {

// Of properties with the same key only the first can be set by it.
void walk(const FlashTemplate::Properties& properties, QSet<QString>& seen,
          const std::function<void(const FlashTemplateProperty&)>& visit) {
    for (const auto& property : properties) {
        if (!property->key().isEmpty() && !seen.contains(property->key())) {
            seen.insert(property->key());
            visit(*property);
        }
        walk(property->childProperties(), seen, visit);
    }
}

Project::Value valueOf(const FlashTemplateProperty& property) {
    Project::Value value{property.key(), property.value(), false, {}};
    value.isFile = property.propertyType() == pt_file && value.text.startsWith(u'/');
    if (value.isFile)
        value.file.path = value.text;
    return value;
}

} // namespace

bool ProjectValues::holdStyle(const FlashTemplate& tmpl) {
    return !tmpl.styleName().isEmpty() &&
           !QFileInfo::exists(FlashTemplate::stylePathFor(tmpl.tmplName(), tmpl.styleName()));
}

std::vector<Project::Value> ProjectValues::changed(const FlashTemplate& tmpl) {
    TemplateDefaults defaults;
    defaults.read(tmpl);
    TemplateDefaults withoutStyle = defaults;
    if (holdStyle(tmpl)) {
        FlashTemplate alone;
        alone.loadTemplate(tmpl.tmplName());
        withoutStyle.read(alone);
    }
    std::vector<Project::Value> values;
    QSet<QString> seen{QStringLiteral("pageWidth"), QStringLiteral("pageHeight")};
    walk(tmpl.properties(), seen, [&](const FlashTemplateProperty& property) {
        if (defaults.isChanged(property) || withoutStyle.isChanged(property))
            values.push_back(valueOf(property));
    });
    return values;
}

void ProjectValues::apply(const std::vector<Project::Value>& values, FlashTemplate& tmpl) {
    for (const Project::Value& value : values)
        tmpl.setPropertyValue(value.key, value.text);
}
