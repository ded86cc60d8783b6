#include "output/ForeignFiles.h"

#include "output/BookLayout.h"
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

// The same in a folder of the book's "files", which may be a link as well.
QStringList inFiles(const BookLayout& book, const QString& folder, const QString& pattern) {
    return QFileInfo(book.at(BookLayout::files)).isSymLink()
               ? QStringList()
               : matching(book.at(folder, {}), pattern);
}

QStringList inFiles(const BookLayout& book, const QStringList& paths) {
    QStringList found;
    for (const QString& path : paths)
        found += inFiles(book, BookLayout::inFiles(path).section(u'/', 0, -2),
                         QRegularExpression::escape(Files::lastPathComponent(path)));
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

QStringList ForeignFiles::ofBook(const BookLayout& book, const FlashTemplate* flashTemplate) {
    QStringList keys{QFileInfo(BookLayout::sound).baseName(),
                     QFileInfo(BookLayout::document).baseName()};
    if (flashTemplate) {
        for (const auto& property : flashTemplate->properties()) {
            if (property)
                keys += keysOfFiles(*property);
        }
    }
    return inFiles(book, {BookLayout::configuration, BookLayout::configurationScript}) +
           inFiles(book, BookLayout::pages, BookLayout::namesIn(BookLayout::pages)) +
           inFiles(book, BookLayout::settingsFiles,
                   QStringLiteral("(%1)\\.[^.]*").arg(keys.join(u'|')));
}

QStringList ForeignFiles::ofWebBook(const BookLayout& book) {
    QStringList found = inFiles(book, BookLayout::webFiles() +
                                          QStringList{BookLayout::icon, BookLayout::offlineList});
    for (const auto& folder : {BookLayout::thumbnails, BookLayout::largePages, BookLayout::texts,
                               BookLayout::webData, BookLayout::search, BookLayout::reading})
        found += inFiles(book, folder, BookLayout::namesIn(folder));
    return found;
}
