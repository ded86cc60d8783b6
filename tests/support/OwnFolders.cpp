#include "support/OwnFolders.h"

#include "system/Folders.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

OwnFolders::OwnFolders() {
    for (const auto& [variable, folder] : {std::pair("HOME", "home"),
                                           {"XDG_CONFIG_HOME", "config"},
                                           {"XDG_DATA_HOME", "data"},
                                           {"XDG_CACHE_HOME", "cache"}}) {
        const QString path = iRoot.filePath(QLatin1String(folder));
        QDir().mkpath(path);
        qputenv(variable, QFile::encodeName(path));
    }
    Folders::setMachineRoot(iRoot.filePath(QStringLiteral("machine")));
}
