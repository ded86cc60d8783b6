#pragma once

#include "base/Message.h"

#include <QStringList>

// The files that users choose to make a book of.
namespace InputFiles {

// By its name: a PDF, a picture, or a document that LibreOffice turns into a PDF.
bool isUsable(const QString& path);

// By their names, whatever their folders: "Page 9" comes before "Page 10".
void sortByName(QStringList& paths);

// The PDFs and pictures of a folder by name; none when it can't be read.
QStringList inFolder(const QString& folder);

// Files and folders as the files that are used, by name, those of a folder in its place; and why
// the others are not.
struct Chosen {
    QStringList files;
    Messages notUsed;
};
Chosen of(QStringList paths);

} // namespace InputFiles
