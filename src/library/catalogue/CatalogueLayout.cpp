#include "library/catalogue/CatalogueLayout.h"

#include "library/BookID.h"

#include <QCryptographicHash>

namespace {

constexpr qsizetype longestSlug = 40;
constexpr qsizetype digitsOfDigest = 10;

QByteArray inFolder(const QByteArray& path) {
    return CatalogueLayout::folder + '/' + path;
}

// The first page has no number.
QByteArray numbered(int number) {
    return number > 1 ? '-' + QByteArray::number(number) : QByteArray();
}

} // namespace

QByteArray CatalogueLayout::sitemapPart(int part) {
    return "sitemap-" + QByteArray::number(part) + ".xml";
}

QByteArray CatalogueLayout::bookPage(const QString& id) {
    return inFolder("books/" + bookKey(id) + ".html");
}

QByteArray CatalogueLayout::bookKey(const QString& id) {
    return BookID::digest(id).left(1).toHex() + '/' + id.toLatin1();
}

QByteArray CatalogueLayout::page(const QByteArray& list, int page) {
    return inFolder(list + numbered(page) + ".html");
}

QByteArray CatalogueLayout::part(const QByteArray& list, int page, const char* extension) {
    return inFolder(list + numbered(page) + extension);
}

QByteArray CatalogueLayout::data(const QByteArray& name) {
    return index + '/' + name + ".js";
}

QByteArray CatalogueLayout::up(const QByteArray& path) {
    return QByteArray("../").repeated(path.count('/'));
}

QByteArray CatalogueLayout::slug(const QString& name, const QByteArray& key) {
    const QByteArray words = BookID::asWords(name, longestSlug).toLatin1();
    const QByteArray digest =
        QCryptographicHash::hash(key, QCryptographicHash::Blake2b_160).toHex().left(digitsOfDigest);
    return words.isEmpty() ? digest : words + '-' + digest;
}
