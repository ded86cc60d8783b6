#include "output/ForeignFiles.h"

#include "output/ExistingBook.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// Paths of a folder's files whose names match a pattern. A link in place of the folder is replaced
// by publishing; its target is untouched.
QStringList matching(const QString& folder, const QString& pattern) {
    if (QFileInfo(folder).isSymLink())
        return {};
    const QRegularExpression name(QRegularExpression::anchoredPattern(pattern));
    QStringList found;
    const auto all = QDir::Files | QDir::System | QDir::Hidden;
    for (const QString& entry : QDir(folder).entryList({}, all, QDir::Name)) {
        const QString path = Files::join(folder, entry);
        if (name.match(entry).hasMatch() && ForeignFiles::isThere(path))
            found << path;
    }
    return found;
}

// The same below "files", which may be a link as well.
QStringList inFiles(const QString& filesFolder,
                    const std::initializer_list<std::pair<const char*, const char*>>& patterns) {
    QStringList found;
    if (QFileInfo(filesFolder).isSymLink())
        return found;
    for (const auto& [folder, pattern] : patterns)
        found += matching(Files::join(filesFolder, QString::fromLatin1(folder)),
                          QString::fromLatin1(pattern));
    return found;
}

QStringList keysOfFiles(const FlashTemplateProperty& property) {
    QStringList keys;
    if (property.propertyType() == pt_file)
        keys << QRegularExpression::escape(property.key());
    for (const auto& child : property.childProperties()) {
        if (child)
            keys += keysOfFiles(*child);
    }
    return keys;
}

} // namespace

bool ForeignFiles::isThere(const QString& path) {
    const QFileInfo info(path);
    return info.isSymLink() || (info.exists() && (!info.isFile() || info.size() > 0));
}

QStringList ForeignFiles::page(const QString& path) {
    const bool isOurs = QFileInfo(path).isDir() || ExistingBook::isPage(path);
    return isThere(path) && !isOurs ? QStringList{path} : QStringList();
}

QStringList ForeignFiles::ofBook(const QString& filesFolder, const FlashTemplate* flashTemplate) {
    QStringList keys{QStringLiteral("moveSound")};
    if (flashTemplate) {
        for (const auto& property : flashTemplate->properties()) {
            if (property)
                keys += keysOfFiles(*property);
        }
    }
    const QByteArray ofProperties = "(" + keys.join(u'|').toUtf8() + ")\\.[^.]*";
    return inFiles(filesFolder, {{"", "UserConfig\\.(bin|js)"},
                                 {"page", "[1-9][0-9]*\\.[A-Za-z0-9]{1,5}"},
                                 {"extfiles", ofProperties.constData()}});
}

QStringList ForeignFiles::ofWebBook(const QString& filesFolder) {
    return inFiles(filesFolder, {{"", "web\\.(js|css)"},
                                 {"web", "(book\\.js|offline\\.js(on)?|icon\\.svg)"},
                                 {"search", "text\\.js"},
                                 {"thumb", "[1-9][0-9]*\\.webp"},
                                 {"large", "[1-9][0-9]*\\.(svg|webp)"},
                                 {"text", "[1-9][0-9]*\\.js"}});
}
