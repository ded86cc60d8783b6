#pragma once

#include <QString>

// Shows what a PDF holds: pages with their sizes, rotations and links, and the outline. Throws
// CommandError.
void runInfo(const QString& pdf, bool json);
