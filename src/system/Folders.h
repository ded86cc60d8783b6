#pragma once

#include <QString>

// The operating system's standard folders. Paths have no trailing separator; a null text means that
// the system defines none.
namespace Folders {

QString userApplicationSupport();
QString machineApplicationSupport();
QString temporary();

// The fixed system-wide folder in which Flash Player on a Mac looks for trust files.
QString libraryApplicationSupport();

// For tests: moves the two system-wide folders below another folder; an empty text restores them.
void setMachineRoot(const QString& folder);

} // namespace Folders
