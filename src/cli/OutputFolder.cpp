#include "cli/OutputFolder.h"

#include "cli/CommandError.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

// Removes the folder and the ones around it, up to the outermost one that was made, as long as they
// are empty.
void removeEmptyFolders(const QString& path, const QString& outermost) {
    for (QString folder = path; folder.size() >= outermost.size();
         folder = QFileInfo(folder).path()) {
        if (!QDir().rmdir(folder))
            return;
    }
}

} // namespace

OutputFolder::OutputFolder(const QString& path)
    : iPath(QDir::cleanPath(QFileInfo(path).absoluteFilePath())) {
    for (QString folder = iPath; !QFileInfo::exists(folder); folder = QFileInfo(folder).path())
        iFirstMade = folder;
    if (!iFirstMade.isNull() && !QDir().mkpath(iPath)) {
        removeEmptyFolders(iPath, iFirstMade);
        throw CommandError(QStringLiteral("%1: the output folder can't be made").arg(path));
    }
    if (!QFileInfo(iPath).isDir())
        throw CommandError(QStringLiteral("%1: is a file, not a folder").arg(path));
    QTemporaryFile probe(iPath + QStringLiteral("/.folvero-XXXXXX"));
    if (!probe.open()) {
        throw CommandError(QStringLiteral("%1: the output folder can't be written (%2)")
                               .arg(path, probe.errorString()));
    }
}

OutputFolder::~OutputFolder() {
    if (!iKept && !iFirstMade.isNull())
        removeEmptyFolders(iPath, iFirstMade);
}
