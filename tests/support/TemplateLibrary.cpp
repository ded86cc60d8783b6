#include "support/TemplateLibrary.h"

#include "system/Bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <stdexcept>

TemplateLibrary::TemplateLibrary() {
    Bundle::setResourcePath(iFolder.path());
}

TemplateLibrary::~TemplateLibrary() {
    Bundle::setResourcePath(QString());
}

QString TemplateLibrary::templatePath(const QString& name) const {
    return path() + QStringLiteral("/AppFiles/Templates/") + name;
}

QString TemplateLibrary::stylePath(const QString& tmplName, const QString& styleName) const {
    return path() + QStringLiteral("/AppFiles/Styles/%1/%2").arg(tmplName, styleName);
}

void TemplateLibrary::addTemplate(const QString& name, const QString& propertiesXML) {
    addTemplateFile(name, templateXML(propertiesXML).toUtf8());
    const QString folder = QStringLiteral("AppFiles/Templates/%1/").arg(name);
    for (const char* file : {"book.swf", "moveSound.mp3", "swfobject.js"})
        addFile(folder + QString::fromLatin1(file), file);
    addFile(folder + QStringLiteral("index.html"), "<html><title>${title}</title></html>");
}

void TemplateLibrary::addTemplateFile(const QString& name, const QByteArray& xml) {
    addFile(QStringLiteral("AppFiles/Templates/%1/flashTemplate.xml").arg(name), xml);
}

void TemplateLibrary::addStyle(const QString& tmplName, const QString& styleName,
                               const QByteArray& settings) {
    addFile(QStringLiteral("AppFiles/Styles/%1/%2/tmplSetting.txt").arg(tmplName, styleName),
            settings);
}

void TemplateLibrary::addFile(const QString& relativePath, const QByteArray& content) {
    TestFiles::write(path() + u'/' + relativePath, content);
}

QString TemplateLibrary::property(const QString& key, const QString& value, const QString& type,
                                  const QString& children) {
    const QString nested =
        children.isEmpty() ? QString()
                           : QStringLiteral("<childProperties>%1</childProperties>").arg(children);
    return QStringLiteral("<property type=\"%1\"><key>%2</key><title>%2</title><desc/>"
                          "<value>%3</value><valueSource/><defaultValue/>%4</property>")
        .arg(type, key, value.toHtmlEscaped(), nested);
}

QString TemplateLibrary::composite(const QString& key, const QString& children) {
    return property(key, QString(), QStringLiteral("pt_composite"), children);
}

QString TemplateLibrary::templateXML(const QString& propertiesXML) {
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<template><info>"
                          "<htmlPath>index.html</htmlPath><swfPath>book.swf</swfPath>"
                          "<defaultStyle>Plain</defaultStyle>"
                          "<macAppFilesFolder>mac.app</macAppFilesFolder>"
                          "<mobileTmplFilesPath>mobile</mobileTmplFilesPath></info>"
                          "<properties>%1</properties></template>")
        .arg(propertiesXML);
}

QByteArray TestFiles::read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("can't read " + path.toStdString());
    return file.readAll();
}

void TestFiles::write(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("can't write " + path.toStdString());
}
