#pragma once

#include "platform/Message.h"
#include "template/FlashTemplateProperty.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

// A template of the library: its files, its current style, and its tree of properties. Look-ups by
// key walk the tree depth first; the first match wins.
class FlashTemplate {
public:
    // Loads the template "float".
    FlashTemplate();

    // Paths of all folders beneath the library's folder of templates, at every depth.
    static QStringList tmplNames();
    // Paths of all folders beneath a template's folder of styles.
    static QStringList tmplStyleNamesForTmpl(const QString& name);
    static QString stylePathFor(const QString& tmplName, const QString& styleName);
    // The template's folder, ending in "/".
    static QString tmplPathForName(const QString& name);
    static QString tmplMetaPathForName(const QString& name);

    // A file that can't be read leaves the new name and no properties; a malformed one leaves what
    // was read before the fault. loadError() then says what was wrong. Values that name files are
    // taken as they stand, here and from styles; those that lie elsewhere are logged as warnings.
    void loadTemplate(const QString& name);
    // Page size and language survive the change.
    void changeTmplTo(const QString& name, const QString& stylePath);
    void loadStyleByStyleName(const QString& styleName);
    void loadStyleByStylePath(const QString& stylePath);

    // Why the last loadTemplate() did not come to its end; null when it did.
    QString loadError() const { return iLoadError.english(); }
    const Message& loadMessage() const { return iLoadError; }

    // The value of the first property with that key, or the default when there is none.
    QString propertyValueFor(const QString& key, const QString& defaultValue) const;
    // The value of the first descendant with that key, or a null text.
    QString propertyValueFor(const FlashTemplateProperty& node, const QString& byKey) const;
    void setPropertyValue(const QString& key, const QString& value);
    // True when a descendant had the key and was set.
    bool setPropertyValueAt(FlashTemplateProperty& node, const QString& key, const QString& value);
    // Resolves "STYLE_RESOURCE:" into the current style's folder; the empty text for what leads out
    // of it, by ".." or by links.
    QString valueAsFilePath(const QString& value) const;

    // The template's HTML page, in the template's folder or else in the library's root; a null text
    // when neither has one. A page that leads out of the library counts as missing.
    QString tmplHTMLFilePath() const;
    // Path of a file of the template's player; null when there is none or it leads out likewise.
    QString playerFile(const QString& name) const;
    // Each removes an existing destination first; a failure is silent.
    void copyBookSWFToFile(const QString& destination) const;
    void copyBookSoundFile(const QString& destination) const;
    void copyBookJSFile(const QString& destination) const;
    // Copies nothing: publishing makes the page from tmplHTMLFilePath().
    void copyHTMLToFile(const QString& /*destination*/) const {}

    // The settings file: one record "key=value" per property. A file that can't be read has none;
    // writing returns false on failure and *error (when given) tells why in words.
    void importPropertiesSettingsFrom(const QString& path);
    bool exportPropertiesSettingsTo(const QString& path, Message* error = nullptr) const;
    // Appends the records of a node and its descendants; of the whole tree for nullptr.
    void exportPropertiesSettingsToArray(QStringList& records,
                                         const FlashTemplateProperty* fromPro) const;

    using Properties = std::vector<std::unique_ptr<FlashTemplateProperty>>;
    const Properties& properties() const { return iProperties; }
    // Takes ownership; the nodes are at the top level from now on.
    void setProperties(Properties properties);

    QString tmplName() const { return iTmplName; }
    void setTmplName(const QString& name) { iTmplName = name; }
    QString tmplVersion() const { return iTmplVersion; }
    void setTmplVersion(const QString& version) { iTmplVersion = version; }
    QString tmplFilePath() const { return iTmplFilePath; }
    void setTmplFilePath(const QString& path) { iTmplFilePath = path; }
    QString SWFFilePath() const { return iSWFFilePath; }
    void setSWFFilePath(const QString& path) { iSWFFilePath = path; }
    QString HTMLFilePath() const { return iHTMLFilePath; }
    void setHTMLFilePath(const QString& path) { iHTMLFilePath = path; }
    QString mobileTmplFilesPath() const { return iMobileTmplFilesPath; }
    void setMobileTmplFilesPath(const QString& path) { iMobileTmplFilesPath = path; }
    QString macAppFilesFolder() const { return iMacAppFilesFolder; }
    void setMacAppFilesFolder(const QString& path) { iMacAppFilesFolder = path; }
    QString defaultSytleName() const { return iDefaultSytleName; }
    void setDefaultSytleName(const QString& name) { iDefaultSytleName = name; }
    QString styleName() const { return iStyleName; }
    void setStyleName(const QString& name) { iStyleName = name; }
    bool needThumbs() const { return iNeedThumbs; }
    void setNeedThumbs(bool needed) { iNeedThumbs = needed; }

private:
    struct FileValue {
        QString key;
        QString value;
        bool operator==(const FileValue&) const = default;
    };

    // Does nothing: properties come from the template file only.
    void initTmplProperties() {}
    void loadTemplateFile(const QString& path);
    bool isOfLibrary(const QString& path) const;
    // Of all properties that name a file, in the order of the tree.
    std::vector<FileValue> fileValues() const;
    // Logs what the source has named since then that lies neither with the template or the style
    // nor in the library.
    void warnAboutOutsideFiles(const QString& source, const std::vector<FileValue>& before) const;

    QString iTmplName;
    Properties iProperties;
    QString iTmplVersion = QStringLiteral("3.0.0");
    QString iTmplFilePath;
    QString iSWFFilePath;
    QString iHTMLFilePath;
    QString iMobileTmplFilesPath;
    QString iMacAppFilesFolder;
    QString iDefaultSytleName = QStringLiteral("Blank");
    QString iStyleName;
    bool iNeedThumbs = true;
    Message iLoadError;
};
