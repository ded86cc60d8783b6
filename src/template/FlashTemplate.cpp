#include "template/FlashTemplate.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "system/Bundle.h"
#include "system/Confinement.h"
#include "system/Files.h"
#include "system/FolderList.h"
#include "template/StyleFolders.h"
#include "template/TemplateFile.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>

namespace {

constexpr Log templateLog("FlashTemplate");

// Joins with exactly one separator and none at the end.
QString appendPathComponent(const QString& folder, const QString& component) {
    qsizetype start = 0;
    qsizetype end = component.size();
    while (start < end && component[start] == u'/')
        ++start;
    while (end > start && component[end - 1] == u'/')
        --end;
    return Files::join(folder, component.mid(start, end - start));
}

QString libraryFolder() {
    return appendPathComponent(Bundle::resourcePath(), QStringLiteral("AppFiles/")) + u'/';
}

QString stylesFolder(const QString& tmplName) {
    const QString styles =
        appendPathComponent(Bundle::resourcePath(), QStringLiteral("AppFiles/Styles/"));
    return appendPathComponent(styles, tmplName);
}

void collectFileValues(const FlashTemplate::Properties& nodes,
                       std::vector<std::pair<QString, QString>>& found) {
    for (const auto& node : nodes) {
        if (node->propertyType() == pt_file)
            found.emplace_back(node->key(), node->value());
        collectFileValues(node->childProperties(), found);
    }
}

// A null source removes the target. Concurrent readers see the old file or the new one, never a
// part.
void replaceFile(const QString& source, const QString& target) {
    if (source.isNull()) {
        QFile::remove(target);
        return;
    }
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial);
    if (!Files::copy(source, partial))
        return;
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(partial).toStdString(),
                            QFile::encodeName(target).toStdString(), error);
    if (error)
        QFile::remove(partial);
}

} // namespace

FlashTemplate::FlashTemplate() {
    initTmplProperties();
    loadTemplate(QStringLiteral("float"));
    templateLog.debug(QStringLiteral("self is:<FlashTemplate: 0x%1>")
                          .arg(reinterpret_cast<quintptr>(this), 0, 16));
}

QStringList FlashTemplate::tmplNames() {
    return FolderList::foldersBeneath(
        appendPathComponent(Bundle::resourcePath(), QStringLiteral("AppFiles/Templates/")));
}

QStringList FlashTemplate::tmplStyleNamesForTmpl(const QString& name) {
    return FolderList::foldersBeneath(stylesFolder(name));
}

QString FlashTemplate::stylePathFor(const QString& tmplName, const QString& styleName) {
    return appendPathComponent(stylesFolder(tmplName), styleName);
}

QString FlashTemplate::styleFolder(const QString& tmplName, const QString& styleName) {
    const QString own = StyleFolders::ownFor(tmplName, styleName);
    const QString ofLibrary = stylePathFor(tmplName, styleName);
    const bool isOwn = !own.isNull() && !QFileInfo::exists(ofLibrary) && QFileInfo::exists(own);
    return isOwn ? own : ofLibrary;
}

QString FlashTemplate::tmplPathForName(const QString& name) {
    const QString folder = QStringLiteral("AppFiles/Templates/%1/").arg(name);
    return appendPathComponent(Bundle::resourcePath(), folder) + u'/';
}

QString FlashTemplate::tmplMetaPathForName(const QString& name) {
    return tmplPathForName(name) + QStringLiteral("flashTemplate.xml");
}

void FlashTemplate::loadTemplate(const QString& name) {
    setProperties({});
    iTmplName = name;
    iLoadError = {};
    const QString path = tmplMetaPathForName(name);
    if (path.contains(QChar::Null)) {
        iLoadError =
            Message::translate("FlashTemplate", "Can't create an URL from file %1.").arg(path);
        templateLog.error(loadError());
        return;
    }
    try {
        loadTemplateFile(path);
    } catch (const PlatformException& failure) {
        iLoadError = Message::translate("FlashTemplate", "Can't load the template file \"%1\": %2")
                         .arg(path, failure.message());
        templateLog.error(loadError());
    }
    warnAboutOutsideFiles(QStringLiteral("template \"%1\"").arg(name), {});
}

void FlashTemplate::loadTemplateFile(const QString& path) {
    const auto document = TemplateFile::read(path);
    const auto root = document->document_element();
    const auto inRoot = [] { return Message::translate("TemplateFile", "root element"); };
    const auto info = TemplateFile::required(root, "info", inRoot);
    const auto infoText = [&info](const char* name) {
        return TemplateFile::requiredText(
            info, name, [] { return Message::translate("TemplateFile", "\"info\" element"); });
    };
    iHTMLFilePath = infoText("htmlPath");
    iSWFFilePath = infoText("swfPath");
    iDefaultSytleName = infoText("defaultStyle");
    iMacAppFilesFolder = infoText("macAppFilesFolder");
    iMobileTmplFilesPath = infoText("mobileTmplFilesPath");

    const auto properties = TemplateFile::required(root, "properties", inRoot);
    for (const pugi::xml_node& element : properties.children("property")) {
        auto property = std::make_unique<FlashTemplateProperty>();
        property->loadFromNode(element);
        iProperties.push_back(std::move(property));
    }
}

void FlashTemplate::setProperties(Properties properties) {
    for (const auto& property : properties)
        property->setParent(nullptr);
    iProperties = std::move(properties);
}

void FlashTemplate::changeTmplTo(const QString& name, const QString& stylePath) {
    const QString pageWidth = propertyValueFor(QStringLiteral("pageWidth"), QStringLiteral("960"));
    const QString pageHeight =
        propertyValueFor(QStringLiteral("pageHeight"), QStringLiteral("600"));
    const QString language =
        propertyValueFor(QStringLiteral("languageSetting"), QStringLiteral(""));
    loadTemplate(name);
    loadStyleByStylePath(stylePath);
    setPropertyValue(QStringLiteral("pageWidth"), pageWidth);
    setPropertyValue(QStringLiteral("pageHeight"), pageHeight);
    setPropertyValue(QStringLiteral("languageSetting"), language);
}

void FlashTemplate::loadStyleByStyleName(const QString& styleName) {
    loadStyleByStylePath(styleFolder(iTmplName, styleName));
}

void FlashTemplate::loadStyleByStylePath(const QString& stylePath) {
    // First, since the style's values refer to files of this style.
    iStyleName = Files::lastPathComponent(stylePath);
    const auto before = fileValues();
    importPropertiesSettingsFrom(Files::join(stylePath, StyleFolders::settingsFile));
    warnAboutOutsideFiles(QStringLiteral("style \"%1\"").arg(iStyleName), before);
}

QString FlashTemplate::tmplHTMLFilePath() const {
    // Template files may use the path separators of another system.
    QString relative = iHTMLFilePath;
    relative.replace(u'\\', u'/');
    for (const QString& folder : {tmplPathForName(iTmplName), libraryFolder()}) {
        const QString path = folder + relative;
        if (QFileInfo(path).isFile() && isOfLibrary(path))
            return path;
    }
    return {};
}

QString FlashTemplate::playerFile(const QString& name) const {
    const QString path = tmplPathForName(iTmplName) + name;
    return QFileInfo(path).isFile() && isOfLibrary(path) ? path : QString();
}

bool FlashTemplate::isOfLibrary(const QString& path) const {
    if (Confinement::contains(tmplPathForName(iTmplName), path) ||
        Confinement::contains(libraryFolder(), path))
        return true;
    templateLog.warn(
        QStringLiteral("the template \"%1\" has no right to this file, it lies elsewhere: %2")
            .arg(iTmplName, path));
    return false;
}

QString FlashTemplate::valueAsFilePath(const QString& value) const {
    const QString prefix = QStringLiteral("STYLE_RESOURCE:");
    const qsizetype found = value.indexOf(prefix);
    if (found < 0)
        return value;
    const QString style = styleFolder(iTmplName, iStyleName);
    const QString path = appendPathComponent(style, value.mid(found + prefix.size()));
    if (Confinement::contains(style, path))
        return path;
    templateLog.warn(
        QStringLiteral("the style \"%1\" has no right to this file, it lies elsewhere: %2")
            .arg(iStyleName, path));
    return QStringLiteral("");
}

FlashTemplate::FileValues FlashTemplate::fileValues() const {
    FileValues found;
    collectFileValues(iProperties, found);
    return found;
}

// Not an error: a style may be a settings file exported by the user, which may name any file.
void FlashTemplate::warnAboutOutsideFiles(const QString& source, const FileValues& before) const {
    const QStringList folders{styleFolder(iTmplName, iStyleName), tmplPathForName(iTmplName),
                              libraryFolder()};
    const auto now = fileValues();
    for (std::size_t i = 0; i < now.size(); ++i) {
        const bool isNew = i >= before.size() || now[i] != before[i];
        const auto holds = [&](const QString& folder) {
            return Confinement::contains(folder, now[i].second);
        };
        if (isNew && !now[i].second.isEmpty() &&
            std::none_of(folders.begin(), folders.end(), holds))
            templateLog.warn(
                QStringLiteral("the %1 names a file that lies elsewhere, books will hold it: %2=%3")
                    .arg(source, now[i].first, now[i].second));
    }
}

void FlashTemplate::copyBookSWFToFile(const QString& destination) const {
    replaceFile(playerFile(QStringLiteral("book.swf")), destination);
}

void FlashTemplate::copyBookSoundFile(const QString& destination) const {
    replaceFile(playerFile(QStringLiteral("moveSound.mp3")), destination);
}

void FlashTemplate::copyBookJSFile(const QString& destination) const {
    replaceFile(playerFile(QStringLiteral("swfobject.js")), destination);
}
