#include "library/LibraryLayout.h"

#include "library/BookID.h"
#include "system/Files.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString jsonExtension = QStringLiteral(".json");

} // namespace

LibraryLayout::LibraryLayout(const QString& folder)
    : iFolder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath())) {}

QString LibraryLayout::at(const QString& path) const {
    return Files::join(iFolder, path);
}

QString LibraryLayout::stateAt(const QString& path) const {
    return Files::join(at(state), path);
}

QString LibraryLayout::book(const QString& id) const {
    return at(bookPath(id));
}

QString LibraryLayout::bookPath(const QString& id) {
    return Files::join(books, id);
}

QString LibraryLayout::results() const {
    return stateAt(QStringLiteral("results"));
}

QString LibraryLayout::result(const QString& id) const {
    return Files::join(resultGroup(resultGroupOf(id)), id + jsonExtension);
}

QString LibraryLayout::resultGroup(int group) const {
    return Files::join(results(), QString::fromLatin1(QByteArray(1, char(group)).toHex()));
}

int LibraryLayout::resultGroupOf(const QString& id) {
    return uchar(BookID::digest(id).front());
}

QString LibraryLayout::lease(const QString& id) const {
    return Files::join(stateAt(QStringLiteral("leases")), id + jsonExtension);
}

QString LibraryLayout::list() const {
    return stateAt(QStringLiteral("list.txt"));
}

QString LibraryLayout::runs() const {
    return stateAt(QStringLiteral("runs"));
}

QString LibraryLayout::searchIndex() const {
    return stateAt(QStringLiteral("search"));
}
