#include "platform/FolderList.h"

#include "platform/Files.h"

#include <QDir>

QStringList FolderList::foldersBeneath(const QString& folder) {
    // With QDir::System pipes, sockets and links that lead nowhere would be among them.
    constexpr auto foldersOnly =
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks;
    QStringList found;
    QStringList pending{folder};
    while (!pending.isEmpty()) {
        const QString current = pending.takeLast();
        if (current != folder)
            found << current;
        // What lies on top of the pile comes next, so the last name goes in first.
        const QStringList names = QDir(current).entryList(foldersOnly, QDir::Name | QDir::Reversed);
        for (const QString& name : names)
            pending << Files::join(current, name);
    }
    return found;
}
