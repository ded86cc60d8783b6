#include "cli/TemplatesCommand.h"

#include "cli/TemplateChoice.h"
#include "cli/Terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject propertyAsJson(const FlashTemplateProperty& property) {
    QJsonObject object{{QStringLiteral("key"), property.key()},
                       {QStringLiteral("type"),
                        StringUtil::flashTemplatePropertyTypeName(property.propertyType())},
                       {QStringLiteral("title"), property.title()},
                       {QStringLiteral("description"), property.desc()},
                       {QStringLiteral("value"), property.value()}};
    const QStringList choices = TemplateChoice::choices(property);
    if (!choices.isEmpty())
        object[QStringLiteral("choices")] = QJsonArray::fromStringList(choices);
    QJsonArray children;
    for (const auto& child : property.childProperties())
        children.append(propertyAsJson(*child));
    if (!children.isEmpty())
        object[QStringLiteral("properties")] = children;
    return object;
}

void printAsJson() {
    QJsonArray templates;
    for (const QString& name : TemplateChoice::templateNames()) {
        const auto tmpl = TemplateChoice::load(name, QString());
        QJsonArray properties;
        for (const auto& property : tmpl->properties())
            properties.append(propertyAsJson(*property));
        templates.append(QJsonObject{{QStringLiteral("name"), name},
                                     {QStringLiteral("defaultStyle"), tmpl->defaultSytleName()},
                                     {QStringLiteral("styles"),
                                      QJsonArray::fromStringList(TemplateChoice::styleNames(name))},
                                     {QStringLiteral("properties"), properties}});
    }
    Terminal::print(QString::fromUtf8(QJsonDocument(templates).toJson()).trimmed());
}

void printProperty(const FlashTemplateProperty& property, int depth) {
    const QString indent(2 * depth, u' ');
    if (property.propertyType() == pt_composite) {
        Terminal::print(QStringLiteral("%1%2").arg(indent, property.title()));
    } else {
        QString line = QStringLiteral("%1%2 = %3").arg(indent, property.key(), property.value());
        line = line.leftJustified(44) + u' ' + property.title();
        const QStringList choices = TemplateChoice::choices(property);
        if (!choices.isEmpty())
            line += QStringLiteral(" (%1)").arg(choices.join(QStringLiteral(", ")));
        else
            line += QStringLiteral(" (%1)").arg(
                StringUtil::flashTemplatePropertyTypeName(property.propertyType()).mid(3));
        Terminal::print(line);
    }
    for (const auto& child : property.childProperties())
        printProperty(*child, depth + 1);
}

} // namespace

void runTemplates(bool json) {
    if (json) {
        printAsJson();
        return;
    }
    for (const QString& name : TemplateChoice::templateNames()) {
        const auto tmpl = TemplateChoice::load(name, QString());
        Terminal::print(name);
        Terminal::print(QStringLiteral("  Styles: %1")
                            .arg(TemplateChoice::styleNames(name).join(QStringLiteral(", "))));
        for (const auto& property : tmpl->properties())
            printProperty(*property, 1);
    }
}
