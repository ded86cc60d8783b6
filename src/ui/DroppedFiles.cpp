#include "ui/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

QStringList DroppedFiles::paths(const QMimeData& dragged) {
    QStringList paths;
    for (const QUrl& url : dragged.urls()) {
        const QString path = url.isLocalFile() ? url.toLocalFile() : url.toDisplayString();
        if (!path.isEmpty())
            paths << path;
    }
    return paths;
}
