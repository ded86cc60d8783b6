#pragma once

#include <QString>

// Names of files in a book that are made from template keys, page files and links.
namespace BookName {

// "NAME.EXT" with the extension of a path; the dot stays when there is none.
QString withExtensionOf(const QString& name, const QString& path);

// Whether a text names a file inside the folder that it is joined to.
bool staysInFolder(const QString& name);

// Whether a name made from what a template or a document says may be given to a file of a book,
// which may be copied to any system and to any web server. It stays in its folder on all of them,
// names a file and no device, holds no control characters nor others that Windows does not allow,
// and has at most 255 bytes. Web servers in their usual settings neither run it nor take orders
// from it, so it is not hidden either. One dot at the end is allowed: withExtensionOf() leaves it
// there, and Windows drops it.
bool isSafe(const QString& name);

} // namespace BookName
