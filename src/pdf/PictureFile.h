#pragma once

#include <QString>
#include <QStringList>

// Pictures that can be pages of a book.
namespace PictureFile {

// The extensions of their names, in small letters.
const QStringList& types();

// By its name.
bool isOne(const QString& path);

} // namespace PictureFile
