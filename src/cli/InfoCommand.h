#pragma once

#include <QString>

// Prints what a PDF contains: pages with their sizes, rotations and links, and the outline. Throws
// CommandError.
void runInfo(const QString& pdf, bool json);
