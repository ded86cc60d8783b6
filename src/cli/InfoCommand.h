#pragma once

#include <QByteArray>
#include <QString>

// Prints what a PDF contains: pages with their sizes, rotations and links, and the outline. The
// password, in UTF-8, may be empty. Throws CommandError.
void runInfo(const QString& pdf, const QByteArray& password, bool json);
