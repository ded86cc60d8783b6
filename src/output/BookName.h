#pragma once

#include <QString>

// Names of files in a book that are made from template keys, page files and links.
namespace BookName {

// "NAME.EXT" with the extension of a path; the dot stays when there is none.
QString withExtensionOf(const QString& name, const QString& path);

// Whether a text names a file inside the folder that it is joined to.
bool staysInFolder(const QString& name);

// Whether a name made from what a template or a document says may be given to a file of a book,
// which may be copied to any system and to any web server: it stays in its folder on all of them,
// is not hidden (web servers take orders from such files), holds no control characters, and has at
// most 255 bytes.
bool isHarmless(const QString& name);

} // namespace BookName
