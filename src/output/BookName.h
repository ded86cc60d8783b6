#pragma once

#include <QString>

// Names of files in a book that derive from template keys, page files and links.
namespace BookName {

// "NAME.EXT" with the extension of path; the dot is kept when path has none.
QString withExtensionOf(const QString& name, const QString& path);

// Whether a text, appended to a folder, names a file inside it.
bool staysInFolder(const QString& name);

// Whether a name from a template or document is safe for a file of a book, which may be copied to
// any system and any web server: it stays in its folder on all of them, is not a device name,
// contains no control characters and none that Windows forbids, and has at most 255 bytes. Web
// servers with default settings neither execute it nor treat it as configuration or a hidden file.
// One dot at the end is allowed: withExtensionOf() leaves it, and Windows drops it.
bool isSafe(const QString& name);

} // namespace BookName
