#include "platform/Folders.h"

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
    return machineRoot() + QStringLiteral("/usr/local/share");
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
