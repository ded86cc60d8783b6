#include "system/Bundle.h"

#include "system/NameAliases.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <filesystem>

namespace {

QString& resourceOverride() {
    static QString path;
    return path;
}

// The folder with "bin" and all else.
QString installation() {
    const QString programs = QCoreApplication::applicationDirPath();
    if (!programs.isEmpty())
        return QDir::cleanPath(programs + QStringLiteral("/.."));
    // Qt does not find a program below a name that is not UTF-8.
    static const QString folder = NameAliases::decoded(QByteArray::fromStdString(
        std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path().string()));
    return folder;
}

QString besideProgramFolder(const QString& path) {
    return installation() + u'/' + path;
}

} // namespace

QString Bundle::resourcePath() {
    if (!resourceOverride().isNull())
        return resourceOverride();
    return besideProgramFolder(QStringLiteral("share/folvero"));
}

QString Bundle::pathForAuxiliaryExecutable(const QString& name) {
    return besideProgramFolder(QStringLiteral("libexec/folvero/") + name);
}

QString Bundle::pageWorkerPath() {
    return pathForAuxiliaryExecutable(QStringLiteral("folvero-page-worker"));
}

void Bundle::setResourcePath(const QString& path) {
    resourceOverride() = path;
}

QString Bundle::pathForResource(const QString& name, const QString& type,
                                const QString& inDirectory) {
    const QString file = type.isEmpty() ? name : name + u'.' + type;
    const QString path = QDir(QDir(resourcePath()).filePath(inDirectory)).filePath(file);
    return QFileInfo::exists(path) ? path : QString();
}

QStringList Bundle::pathsForResourcesOfType(const QString& type, const QString& inDirectory) {
    const QDir folder(QDir(resourcePath()).filePath(inDirectory));
    QStringList paths;
    for (const QString& name : folder.entryList({QStringLiteral("*.") + type}, QDir::Files))
        paths << folder.filePath(name);
    return paths;
}

QString Bundle::version() {
    return QStringLiteral(FOLVERO_VERSION);
}
