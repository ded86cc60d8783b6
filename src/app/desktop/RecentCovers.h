#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>

// The pictures of the first pages of recent files. Projects have theirs in their files, those of
// documents are in the user's cache folder.
namespace RecentCovers {

// The width and height in which they are shown, in pixels of the window.
inline constexpr int side = 40;

// Blank for a file without a picture, so that texts beside it stand below each other.
QIcon of(const QString& path);

// Keeps the JPEG file of a document's picture; a null one removes it.
void keep(const QString& path, const QByteArray& jpeg);

// Removes all that were kept for documents.
void clear();

} // namespace RecentCovers
