#include "template/TemplateDefaults.h"

#include "template/FlashTemplate.h"

namespace {

void collect(const FlashTemplate::Properties& properties, QHash<QString, QString>& values) {
    for (const auto& property : properties) {
        // As in look-ups, the first one with a key counts.
        if (!values.contains(property->key()))
            values[property->key()] = property->value();
        collect(property->childProperties(), values);
    }
}

bool meanTheSame(int type, const QString& one, const QString& other) {
    if (type == pt_bool)
        return StringUtil::valueAsBool(one) == StringUtil::valueAsBool(other);
    if (type == pt_color)
        return one.compare(other, Qt::CaseInsensitive) == 0;
    bool areNumbers = type == pt_number;
    const double number = areNumbers ? one.toDouble(&areNumbers) : 0;
    return areNumbers ? other.toDouble() == number : one == other;
}

} // namespace

void TemplateDefaults::read(const FlashTemplate& tmpl) {
    FlashTemplate fresh;
    fresh.loadTemplate(tmpl.tmplName());
    if (!tmpl.styleName().isEmpty())
        fresh.loadStyleByStyleName(tmpl.styleName());
    iOfTemplate.clear();
    collect(fresh.properties(), iOfTemplate);
}

QString TemplateDefaults::valueFor(const FlashTemplateProperty& property) const {
    if (property.propertyType() == pt_composite)
        return {};
    const auto ofDocument = iOfDocument.find(property.key());
    return ofDocument != iOfDocument.end() ? *ofDocument : iOfTemplate.value(property.key());
}

bool TemplateDefaults::isChanged(const FlashTemplateProperty& property) const {
    const QString value = valueFor(property);
    return !value.isNull() && !meanTheSame(property.propertyType(), property.value(), value);
}
