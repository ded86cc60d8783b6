#pragma once

#include <QString>

// The operating system's standard folders. Paths come without a trailing separator; a null text
// means that the system names none.
namespace Folders {

QString userApplicationSupport();
QString machineApplicationSupport();
QString temporary();

// The fixed machine-wide folder in which Flash Player on a Mac looks for trust files.
QString libraryApplicationSupport();

// Tests move the two machine-wide folders beneath a folder of their own; an empty text undoes it.
void setMachineRoot(const QString& folder);

} // namespace Folders
