#pragma once

#include <QString>
#include <QStringList>

// Finds the files that are installed with the program.
namespace Bundle {

// The folder that holds AppFiles/ and the other resources, without a trailing separator. It is
// share/folvero/ beside the bin/ folder that the running program lies in.
QString resourcePath();

// Path of a program that only ours start: it lies in libexec/folvero/ beside bin/, so that it is in
// nobody's search path.
QString pathForAuxiliaryExecutable(const QString& name);

// That of the program which reads PDF files and draws their pages.
QString pageWorkerPath();

// Tests point the program at a library of their own. A null text goes back to the installed one.
void setResourcePath(const QString& path);

// Path of the resource NAME.TYPE (or NAME when type is empty) in a sub-folder of the resources, or
// a null text when there is none.
QString pathForResource(const QString& name, const QString& type,
                        const QString& inDirectory = QString());

// Paths of all resources with that extension in a sub-folder, sorted by name.
QStringList pathsForResourcesOfType(const QString& type, const QString& inDirectory = QString());

// The program's version, for example "1.2.0".
QString version();

} // namespace Bundle
