#include "system/FolderList.h"

#include "system/Files.h"

#include <QDir>

QStringList FolderList::foldersBeneath(const QString& folder) {
    // QDir::System would also return pipes, sockets and dangling links.
    constexpr auto foldersOnly =
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks;
    QStringList found;
    QStringList pending{folder};
    while (!pending.isEmpty()) {
        const QString current = pending.takeLast();
        if (current != folder)
            found << current;
        // The top of the stack is visited next, so names are pushed in reverse.
        const QStringList names = QDir(current).entryList(foldersOnly, QDir::Name | QDir::Reversed);
        for (const QString& name : names)
            pending << Files::join(current, name);
    }
    return found;
}
