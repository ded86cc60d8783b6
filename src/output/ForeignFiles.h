#pragma once

#include <QStringList>

class FlashTemplate;

// Files that a publish would replace or remove although no publish of ours made them. The
// publishers' foreignFiles() put together what theirs would; callers ask those.
namespace ForeignFiles {

// Whether there is anything of that name that could be lost: an empty file holds nothing. A link
// counts, wherever it leads.
bool isThere(const QString& path);

// The HTML page, unless it is a book's; at most one path. A folder is left out, since publishing
// fails at it.
QStringList page(const QString& path);

// For a folder "files" that no book has: paths of what lies where a book has its configuration, its
// pages and the files of its template's properties; and what a web book has there beyond.
QStringList ofBook(const QString& filesFolder, const FlashTemplate* flashTemplate);
QStringList ofWebBook(const QString& filesFolder);

} // namespace ForeignFiles
