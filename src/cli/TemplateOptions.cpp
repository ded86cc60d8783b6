#include "cli/TemplateOptions.h"

#include "cli/PublishOptions.h"
#include "console/CommandError.h"
#include "project/ProjectValues.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "template/OwnStyles.h"
#include "template/StyleFolders.h"
#include "util/ColorCategory.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// The names of the folders that contain that file, sorted.
QStringList namesWith(const QString& file, const QStringList& folders) {
    QStringList names;
    for (const QString& path : folders) {
        if (QFileInfo::exists(Files::join(path, file)))
            names << Files::lastPathComponent(path);
    }
    names.sort();
    return names;
}

// The first property with that key, or nullptr.
const FlashTemplateProperty* findIn(const FlashTemplate::Properties& nodes, const QString& key) {
    for (const auto& node : nodes) {
        if (node->key() == key)
            return node.get();
        if (const auto* found = findIn(node->childProperties(), key))
            return found;
    }
    return nullptr;
}

[[noreturn]] void refuse(const QString& key, const QString& value, const QString& expected) {
    throw CommandError(QStringLiteral("--set %1: \"%2\" is not %3").arg(key, value, expected),
                       ExitCode::usage);
}

// Validates a value and returns it as stored; files become absolute paths, since a book may be made
// from any folder.
QString checkedValue(const FlashTemplateProperty& property, const QString& value) {
    static const QRegularExpression number(QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)$"));
    static const QRegularExpression boolean(QStringLiteral("^(yes|no|true|false)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QString key = property.key();
    switch (property.propertyType()) {
    case pt_number:
        if (!number.match(value).hasMatch())
            refuse(key, value, QStringLiteral("a number"));
        return value;
    case pt_color:
        if (MyColorOper::hexRGBFromText(value).isNull())
            refuse(key, value, QStringLiteral("a colour such as 0x1E90FF"));
        return MyColorOper::hexRGBFromText(value);
    case pt_list:
        if (!TemplateOptions::choices(property).contains(value)) {
            refuse(key, value,
                   QStringLiteral("one of: %1")
                       .arg(TemplateOptions::choices(property).join(QStringLiteral(", "))));
        }
        return value;
    case pt_file:
        if (value.isEmpty() || value.contains(QStringLiteral("STYLE_RESOURCE:")))
            return value;
        if (!QFileInfo(value).isFile())
            refuse(key, value, QStringLiteral("an existing file"));
        return QFileInfo(value).absoluteFilePath();
    case pt_bool:
        if (!boolean.match(value).hasMatch())
            refuse(key, value, QStringLiteral("YES or NO"));
        return StringUtil::valueAsBool(value) ? QStringLiteral("YES") : QStringLiteral("NO");
    default:
        return value;
    }
}

} // namespace

QStringList TemplateOptions::templateNames() {
    return namesWith(QStringLiteral("flashTemplate.xml"), FlashTemplate::tmplNames());
}

QStringList TemplateOptions::styleNames(const QString& templateName) {
    QStringList names =
        namesWith(StyleFolders::settingsFile, FlashTemplate::tmplStyleNamesForTmpl(templateName) +
                                                  StyleFolders::ownOf(templateName));
    // The library's comes first.
    names.removeDuplicates();
    return names;
}

QStringList TemplateOptions::choices(const FlashTemplateProperty& property) {
    return property.propertyType() == pt_list ? property.valueSource().split(u',') : QStringList();
}

void TemplateOptions::checkLibrary() {
    if (templateNames().isEmpty()) {
        throw CommandError(QStringLiteral("%1: holds no templates; the program is not installed "
                                          "completely")
                               .arg(Bundle::resourcePath()));
    }
}

std::shared_ptr<FlashTemplate> TemplateOptions::load(const QString& templateName,
                                                     const QString& styleName) {
    checkLibrary();
    if (!templateNames().contains(templateName)) {
        throw CommandError(QStringLiteral("there is no template \"%1\"; there are: %2")
                               .arg(templateName, templateNames().join(QStringLiteral(", "))));
    }
    if (!styleName.isEmpty() && !styleNames(templateName).contains(styleName)) {
        throw CommandError(
            QStringLiteral("the template \"%1\" has no style \"%2\"; it has: %3")
                .arg(templateName, styleName, styleNames(templateName).join(QStringLiteral(", "))));
    }
    const QString style = FlashTemplate::styleFolder(templateName, styleName);
    if (const Message failure =
            StyleFolders::isOwn(style) ? OwnStyles::failureOf(style) : Message();
        !failure.isNull())
        throw CommandError(failure.english());
    auto tmpl = std::make_shared<FlashTemplate>();
    if (!styleName.isEmpty())
        tmpl->changeTmplTo(templateName, style);
    else if (templateName != tmpl->tmplName())
        tmpl->loadTemplate(templateName);
    if (!tmpl->loadError().isNull())
        throw CommandError(tmpl->loadError());
    return tmpl;
}

void TemplateOptions::applySettingsFile(FlashTemplate& tmpl, const QString& path) {
    // Far beyond any: whatever it is, it has no settings.
    constexpr qint64 mostBytes = 16 << 20;
    QFile file(path);
    const QFileInfo info(path);
    const QString obstacle = info.isDir()                      ? QStringLiteral("is a folder")
                             : info.exists() && !info.isFile() ? QStringLiteral("is no file")
                             : info.size() > mostBytes ? QStringLiteral("is larger than 16 MB")
                             : file.open(QIODevice::ReadOnly) ? QString()
                                                              : file.errorString();
    if (!obstacle.isEmpty()) {
        throw CommandError(
            QStringLiteral("%1: the settings file can't be read (%2)").arg(path, obstacle));
    }
    file.close();
    tmpl.importPropertiesSettingsFrom(path);
}

void TemplateOptions::applyAssignment(FlashTemplate& tmpl, const QString& assignment) {
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals <= 0) {
        throw CommandError(QStringLiteral("--set takes KEY=VALUE, not \"%1\"").arg(assignment),
                           ExitCode::usage);
    }
    const QString key = assignment.left(equals);
    const FlashTemplateProperty* property = findIn(tmpl.properties(), key);
    if (!property) {
        throw CommandError(QStringLiteral("--set: the template \"%1\" has no property \"%2\"; "
                                          "\"folvero templates\" lists them")
                               .arg(tmpl.tmplName(), key),
                           ExitCode::usage);
    }
    const QString value = checkedValue(*property, assignment.mid(equals + 1));
    if (property->propertyType() == pt_file && !value.isEmpty() &&
        tmpl.valueAsFilePath(value).isEmpty())
        refuse(key, value, QStringLiteral("a file of the style"));
    tmpl.setPropertyValue(key, value);
}

std::shared_ptr<FlashTemplate> TemplateOptions::prepared(const PublishOptions& options,
                                                         bool isRightToLeft) {
    auto tmpl = load(options.templateName, options.styleName);
    if (isRightToLeft)
        tmpl->setPropertyValue(QStringLiteral("RightToLeft"), QStringLiteral("YES"));
    ProjectValues::apply(options.values, *tmpl);
    if (!options.settingsFile.isEmpty())
        applySettingsFile(*tmpl, options.settingsFile);
    for (const QString& assignment : options.assignments)
        applyAssignment(*tmpl, assignment);
    return tmpl;
}
