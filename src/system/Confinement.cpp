#include "system/Confinement.h"

#include <QDir>
#include <QFile>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>

namespace {

template <class Text>
bool isIn(const Text& folder, const Text& path) {
    return path == folder || path.startsWith(folder.endsWith('/') ? folder : folder + '/');
}

// Null for a path that does not exist, dangling and circular links included.
QByteArray realPath(const QString& path) {
    const std::unique_ptr<char, void (*)(void*)> real(
        ::realpath(QFile::encodeName(path).constData(), nullptr), std::free);
    return real.get();
}

bool isThere(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0;
}

} // namespace

bool Confinement::contains(const QString& folder, const QString& path) {
    if (path.contains(QChar::Null))
        return false;
    const QString root = QDir::cleanPath(folder);
    const QString clean = QDir::cleanPath(path);
    if (!isIn(root, clean))
        return false;
    const QByteArray realRoot = realPath(root);
    const QByteArray real = realPath(path);
    if (!real.isEmpty())
        return !realRoot.isEmpty() && isIn(realRoot, real);
    // The file does not exist: no component may lead elsewhere once it does. With ".." behind a
    // link the normalised path would not be reliable.
    if (path.split(u'/').contains(u".."))
        return false;
    QString part = clean;
    while (part != root && !isThere(part))
        part = part.section(u'/', 0, -2);
    const QByteArray realPart = realPath(part);
    return part == root || (!realPart.isEmpty() && isIn(realRoot, realPart));
}
