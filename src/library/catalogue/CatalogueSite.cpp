#include "library/catalogue/CatalogueSite.h"

#include "library/LibraryLayout.h"

QString CatalogueSite::nameOf(const BookGroups& groups, const BookGroup& group) const {
    return groups.kind() == BookGroups::Kind::language ? texts.nameOf(group.name) : group.name;
}

QByteArray CatalogueSite::address(const QByteArray& path) const {
    return settings.address.toUtf8() + path;
}

QByteArray CatalogueSite::bookAddress(const CatalogueBook& book) const {
    return address(LibraryLayout::bookPath(book.id).toUtf8() + '/');
}
