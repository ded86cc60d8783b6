#pragma once

#include <QStringList>

// The book that an earlier publish left in a folder.
namespace EarlierBook {

// Paths, relative to the folder "files" of the book, of all files that its pages may have and of
// what a web book has beyond. By the book's own configuration, so that nobody else's files are
// among them; none when that can't be read.
QStringList files(const QString& filesFolder);

} // namespace EarlierBook
