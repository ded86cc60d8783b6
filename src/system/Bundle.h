#pragma once

#include <QString>
#include <QStringList>

// Locates files that are installed with the program.
namespace Bundle {

// The folder that contains AppFiles/ and the other resources, without a trailing separator:
// share/folvero/ beside the bin/ folder of the running program.
QString resourcePath();

// Path of a helper program that only our own programs start. It is installed in libexec/folvero/
// beside bin/, outside the search path.
QString pathForAuxiliaryExecutable(const QString& name);

// Path of the page worker, which reads PDF files and draws their pages.
QString pageWorkerPath();

// For tests: uses another resource folder. A null text restores the installed one.
void setResourcePath(const QString& path);

// Path of the resource NAME.TYPE (or NAME when type is empty) in a sub-folder of the resources, or
// a null text when it does not exist.
QString pathForResource(const QString& name, const QString& type,
                        const QString& inDirectory = QString());

// Paths of all resources with that extension in a sub-folder, sorted by name.
QStringList pathsForResourcesOfType(const QString& type, const QString& inDirectory = QString());

// The program's version, for example "1.2.0".
QString version();

} // namespace Bundle
