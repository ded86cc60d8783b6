#pragma once

#include <QString>

// Prints what a project consists of and which of its files are missing. Throws PlatformException
// when it can't be read.
void runProjectInfo(const QString& path, bool json);
