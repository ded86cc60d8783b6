#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A template library in a temporary folder that the program uses instead of the installed one for
// as long as this lives.
class TemplateLibrary {
public:
    TemplateLibrary();
    ~TemplateLibrary();
    TemplateLibrary(const TemplateLibrary&) = delete;
    TemplateLibrary& operator=(const TemplateLibrary&) = delete;

    // The resource folder, with no separator at its end.
    QString path() const { return iFolder.path(); }
    QString templatePath(const QString& name) const;
    QString stylePath(const QString& tmplName, const QString& styleName) const;

    // Writes "flashTemplate.xml" with these "property" elements, and the player files: each holds
    // its own file name, "index.html" a small page.
    void addTemplate(const QString& name, const QString& propertiesXML = QString());
    // Writes "flashTemplate.xml" alone, as given.
    void addTemplateFile(const QString& name, const QByteArray& xml);
    // Writes a style's settings file.
    void addStyle(const QString& tmplName, const QString& styleName, const QByteArray& settings);

    // Writes any file beneath the resource folder, with the folders that it needs.
    void addFile(const QString& relativePath, const QByteArray& content);

    // A "property" element with its six required child elements.
    static QString property(const QString& key, const QString& value,
                            const QString& type = QStringLiteral("pt_text"),
                            const QString& children = QString());
    static QString composite(const QString& key, const QString& children);
    // The whole text of a "flashTemplate.xml".
    static QString templateXML(const QString& propertiesXML);

private:
    QTemporaryDir iFolder;
};

namespace TestFiles {

// Both throw std::runtime_error, which fails the test, when the file can't be had.
QByteArray read(const QString& path);
void write(const QString& path, const QByteArray& content);

} // namespace TestFiles
