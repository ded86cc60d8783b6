#include "output/StagingFolder.h"

#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

const QString prefix = QStringLiteral(".folvero-publish-");

} // namespace

QString StagingFolder::make(const QString& inFolder) {
    const QString pattern =
        Files::join(inFolder, QStringLiteral("%1%2-XXXXXX").arg(prefix).arg(::getpid()));
    QByteArray name = QFile::encodeName(pattern);
    return ::mkdtemp(name.data()) ? QFile::decodeName(name) : QString();
}

void StagingFolder::removeStale(const QString& inFolder) {
    const QDir folder(inFolder);
    const auto names = folder.entryList({prefix + u'*'}, QDir::Dirs | QDir::Hidden);
    for (const QString& name : names) {
        const pid_t process = name.mid(prefix.size()).section(u'-', 0, 0).toInt();
        if (process > 0 && ::kill(process, 0) != 0 && errno == ESRCH)
            QDir(folder.filePath(name)).removeRecursively();
    }
}
