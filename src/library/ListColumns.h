#pragma once

#include "library/BookList.h"

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

// What the columns of a list mean: the document, the book's ID, its facts, and options of "folvero
// publish" by their names.
namespace ListColumns {

// Whether a column of that name is understood. Names are in lower case.
bool isKnown(const QString& name);

// A line with its values by columns; relative paths are relative to the folder,
// an absolute path.
ListedBook book(qint64 line, const std::vector<std::pair<QString, QByteArray>>& values,
                const QByteArray& folder);

} // namespace ListColumns
