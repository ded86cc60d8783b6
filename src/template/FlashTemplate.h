#pragma once

#include "base/Message.h"
#include "template/FlashTemplateProperty.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <utility>
#include <vector>

// A template of the library: its files, its current style, and its tree of properties. Look-ups by
// key search depth first; the first match wins.
class FlashTemplate {
public:
    // Loads the template "float".
    FlashTemplate();

    // Paths of all folders below the library's template folder, recursively.
    static QStringList tmplNames();
    // Paths of all folders below a template's style folder.
    static QStringList tmplStyleNamesForTmpl(const QString& name);
    static QString stylePathFor(const QString& tmplName, const QString& styleName);
    // The folder of a style: that of the library, or else the user's own; see StyleFolders. Where
    // there is neither, the path in the library.
    static QString styleFolder(const QString& tmplName, const QString& styleName);
    // The template's folder, ending in "/".
    static QString tmplPathForName(const QString& name);
    static QString tmplMetaPathForName(const QString& name);

    // An unreadable file sets the new name and clears the properties; a malformed one keeps what
    // was read before the error. loadError() has the cause. Values that name files are accepted as
    // they are, here and from styles; files outside the library are logged as warnings.
    void loadTemplate(const QString& name);
    // Keeps the page size and the language.
    void changeTmplTo(const QString& name, const QString& stylePath);
    void loadStyleByStyleName(const QString& styleName);
    void loadStyleByStylePath(const QString& stylePath);

    // Why the last loadTemplate() failed; null when it succeeded.
    QString loadError() const { return iLoadError.english(); }
    const Message& loadMessage() const { return iLoadError; }

    // The value of the first property with that key, or the default.
    QString propertyValueFor(const QString& key, const QString& defaultValue) const;
    // Whether the book is read from right to left.
    bool isRightToLeft() const;
    // The value of the first descendant with that key, or a null text.
    QString propertyValueFor(const FlashTemplateProperty& node, const QString& byKey) const;
    void setPropertyValue(const QString& key, const QString& value);
    // True when a descendant with that key was set.
    bool setPropertyValueAt(FlashTemplateProperty& node, const QString& key, const QString& value);
    // Resolves "STYLE_RESOURCE:" to the current style's folder; empty for paths that leave it, by
    // ".." or by links.
    QString valueAsFilePath(const QString& value) const;

    // The template's HTML page, in the template's folder or else in the library's root; a null text
    // when neither has one. A page outside the library counts as missing.
    QString tmplHTMLFilePath() const;
    // Path of a file of the template's player; null when it does not exist or is outside the
    // library.
    QString playerFile(const QString& name) const;
    // Each removes an existing destination first and ignores errors.
    void copyBookSWFToFile(const QString& destination) const;
    void copyBookSoundFile(const QString& destination) const;
    void copyBookJSFile(const QString& destination) const;
    // Does nothing: publishing makes the page from tmplHTMLFilePath().
    void copyHTMLToFile(const QString& /*destination*/) const {}

    // The settings file: one record "key=value" per property. An unreadable file has no records.
    // Reading returns how many records name a property; writing returns false on failure and sets
    // *error (when given).
    int importPropertiesSettingsFrom(const QString& path);
    bool exportPropertiesSettingsTo(const QString& path, Message* error = nullptr) const;
    // What is written, but for the values of some keys.
    QByteArray settings(const QStringList& leftOut = {}) const;
    // Appends the records of a node and its descendants; of the whole tree for nullptr.
    void exportPropertiesSettingsToArray(QStringList& records,
                                         const FlashTemplateProperty* fromPro) const;

    using Properties = std::vector<std::unique_ptr<FlashTemplateProperty>>;
    const Properties& properties() const { return iProperties; }
    // Takes ownership; the nodes become the top level.
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
    using FileValues = std::vector<std::pair<QString, QString>>; // values by key

    // Does nothing: properties come only from the template file.
    void initTmplProperties() {}
    void loadTemplateFile(const QString& path);
    bool isOfLibrary(const QString& path) const;
    // Values of all properties that name a file, in tree order.
    FileValues fileValues() const;
    // Logs the files that source has set since before was recorded and that are neither with the
    // template or the style nor in the library.
    void warnAboutOutsideFiles(const QString& source, const FileValues& before) const;

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
