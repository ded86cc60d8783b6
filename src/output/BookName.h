#pragma once

#include <QString>

// Names of files in a book that are made from template keys, page files and links.
namespace BookName {

// "NAME.EXT" with the extension of a path; the dot stays when there is none.
QString withExtensionOf(const QString& name, const QString& path);

// Whether a text names a file inside the folder that it is joined to.
bool staysInFolder(const QString& name);

} // namespace BookName
