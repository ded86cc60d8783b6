#pragma once

#include "library/BookList.h"

#include <memory>

// Opens a list: a CSV file, a file of JSON lines, or a folder whose PDFs are the list, but for
// those below notBelow: the library may be in the folder. Throws PlatformException when it can't be
// read at all, or has no column "pdf".
std::unique_ptr<BookList> openList(const QString& path, const QString& notBelow);
