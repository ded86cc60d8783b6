#include "webbook/CoursePackage.h"

#include "output/PublishTransaction.h"
#include "system/MediaType.h"
#include "system/ZipWriter.h"
#include "util/NSData+CommonCrypto.h"

#include <QFile>
#include <QStringList>
#include <QUrl>
#include <pugixml.hpp>
#include <sstream>

namespace {

// The end of every archive that we write.
const QByteArray comment = QByteArrayLiteral("Course package by Folvero");

constexpr qsizetype identifierLetters = 16;

// Pictures, sounds and documents would not get smaller.
ZipWriter::Method methodFor(const QString& path) {
    const QByteArray type = MediaType::ofFile(path);
    const bool isCompressed = type.startsWith("audio/") || type.startsWith("video/") ||
                              type == "application/pdf" ||
                              (type.startsWith("image/") && !type.contains("svg"));
    return isCompressed ? ZipWriter::Method::stored : ZipWriter::Method::deflated;
}

void set(pugi::xml_node element, const char* name, const QString& value) {
    element.append_attribute(name) = value.toUtf8().constData();
}

pugi::xml_node addText(pugi::xml_node parent, const char* name, const QString& text) {
    pugi::xml_node element = parent.append_child(name);
    element.text() = text.toUtf8().constData();
    return element;
}

QString addressOf(const QString& path) {
    return QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

// The same for each edition of the book, so that a platform knows what it replaces.
QString identifierOf(const QString& title) {
    const QByteArray digest = CommonDigest::SHA256Hash(title.toUtf8()).toHex();
    return QStringLiteral("folvero-") + QString::fromLatin1(digest.left(identifierLetters));
}

} // namespace

QByteArray CoursePackage::manifest(const QString& title, const QString& page,
                                   const QStringList& files) {
    const QString organization = QStringLiteral("book");
    const QString resource = QStringLiteral("pages");
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("manifest");
    set(root, "identifier", identifierOf(title));
    set(root, "version", QStringLiteral("1.0"));
    set(root, "xmlns", QStringLiteral("http://www.imsproject.org/xsd/imscp_rootv1p1p2"));
    set(root, "xmlns:adlcp", QStringLiteral("http://www.adlnet.org/xsd/adlcp_rootv1p2"));
    pugi::xml_node metadata = root.append_child("metadata");
    addText(metadata, "schema", QStringLiteral("ADL SCORM"));
    addText(metadata, "schemaversion", QStringLiteral("1.2"));

    pugi::xml_node organizations = root.append_child("organizations");
    set(organizations, "default", organization);
    pugi::xml_node course = organizations.append_child("organization");
    set(course, "identifier", organization);
    addText(course, "title", title);
    pugi::xml_node item = course.append_child("item");
    set(item, "identifier", QStringLiteral("item"));
    set(item, "identifierref", resource);
    addText(item, "title", title);

    pugi::xml_node unit = root.append_child("resources").append_child("resource");
    set(unit, "identifier", resource);
    set(unit, "type", QStringLiteral("webcontent"));
    set(unit, "adlcp:scormtype", QStringLiteral("sco"));
    set(unit, "href", addressOf(page));
    for (const QString& file : files)
        set(unit.append_child("file"), "href", addressOf(file));

    std::ostringstream xml;
    document.save(xml, "  ", pugi::format_default, pugi::encoding_utf8);
    return QByteArray::fromStdString(xml.str());
}

Message CoursePackage::write(const QString& path, const std::map<QString, QString>& files,
                             const QByteArray& manifest) {
    ZipWriter archive(path);
    archive.add(manifestName, manifest, ZipWriter::Method::deflated);
    for (const auto& [name, source] : files)
        archive.add(name, PublishTransaction::contents(source), methodFor(name));
    return archive.finish(comment);
}

bool CoursePackage::isOne(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() >= comment.size() &&
           file.seek(file.size() - comment.size()) && file.readAll() == comment;
}
