#include "system/FolderList.h"

#include "system/Files.h"

#include <QDir>

QStringList FolderList::foldersBeneath(const QString& folder) {
    // QDir::System would also return pipes, sockets and dangling links.
    constexpr auto foldersOnly =
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks;
    QStringList found;
    for (const QString& name : QDir(folder).entryList(foldersOnly, QDir::Name)) {
        const QString path = Files::join(folder, name);
        found << path << foldersBeneath(path);
    }
    return found;
}
