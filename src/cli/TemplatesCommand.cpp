#include "cli/TemplatesCommand.h"

#include "cli/TemplateOptions.h"
#include "console/CommandError.h"
#include "console/Terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <functional>

namespace {

QJsonObject propertyAsJson(const FlashTemplateProperty& property) {
    QJsonObject object{{QStringLiteral("key"), property.key()},
                       {QStringLiteral("type"),
                        StringUtil::flashTemplatePropertyTypeName(property.propertyType())},
                       {QStringLiteral("title"), property.title()},
                       {QStringLiteral("description"), property.desc()},
                       {QStringLiteral("value"), property.value()}};
    const QStringList choices = TemplateOptions::choices(property);
    if (!choices.isEmpty())
        object[QStringLiteral("choices")] = QJsonArray::fromStringList(choices);
    QJsonArray children;
    for (const auto& child : property.childProperties())
        children.append(propertyAsJson(*child));
    if (!children.isEmpty())
        object[QStringLiteral("properties")] = children;
    return object;
}

// Reports a damaged template and goes on with the others.
void forEachTemplate(const std::function<void(const FlashTemplate&)>& action) {
    for (const QString& name : TemplateOptions::templateNames()) {
        try {
            action(*TemplateOptions::load(name, QString()));
        } catch (const CommandError& failure) {
            Terminal::report(QStringLiteral("folvero: %1").arg(failure.message()));
        }
    }
}

void printAsJson() {
    QJsonArray templates;
    forEachTemplate([&](const FlashTemplate& tmpl) {
        QJsonArray properties;
        for (const auto& property : tmpl.properties())
            properties.append(propertyAsJson(*property));
        const QStringList styles = TemplateOptions::styleNames(tmpl.tmplName());
        templates.append(QJsonObject{{QStringLiteral("name"), tmpl.tmplName()},
                                     {QStringLiteral("defaultStyle"), tmpl.defaultSytleName()},
                                     {QStringLiteral("styles"), QJsonArray::fromStringList(styles)},
                                     {QStringLiteral("properties"), properties}});
    });
    Terminal::print(QString::fromUtf8(QJsonDocument(templates).toJson()).trimmed());
}

void printProperty(const FlashTemplateProperty& property, int depth) {
    const QString indent(qsizetype{2} * depth, u' ');
    if (property.propertyType() == pt_composite) {
        Terminal::print(QStringLiteral("%1%2").arg(indent, property.title()));
    } else {
        QString line = QStringLiteral("%1%2 = %3").arg(indent, property.key(), property.value());
        line = line.leftJustified(44) + u' ' + property.title();
        const QStringList choices = TemplateOptions::choices(property);
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
    TemplateOptions::checkLibrary();
    if (json) {
        printAsJson();
        return;
    }
    forEachTemplate([](const FlashTemplate& tmpl) {
        const QStringList styles = TemplateOptions::styleNames(tmpl.tmplName());
        Terminal::print(tmpl.tmplName());
        Terminal::print(QStringLiteral("  Styles: %1").arg(styles.join(QStringLiteral(", "))));
        for (const auto& property : tmpl.properties())
            printProperty(*property, 1);
    });
}
