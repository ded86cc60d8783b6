#include "system/Folders.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString& machineRoot() {
    static QString root;
    return root;
}

} // namespace

QString Folders::userApplicationSupport() {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return path.isEmpty() ? QString() : path;
}

QString Folders::machineApplicationSupport() {
    const QString path = machineRoot() + QStringLiteral("/usr/local/share");
    return QDir(path).exists() ? path : QString();
}

QString Folders::temporary() {
    const QString path = QDir::tempPath();
    return path.isEmpty() ? QString() : path;
}

QString Folders::libraryApplicationSupport() {
    return machineRoot() + QStringLiteral("/Library/Application Support");
}

void Folders::setMachineRoot(const QString& folder) {
    machineRoot() = folder;
}
