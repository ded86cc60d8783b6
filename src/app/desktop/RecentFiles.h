#pragma once

#include <QStringList>

// Recently opened projects and imported documents, kept across runs, most recent first.
namespace RecentFiles {

// Files that no longer exist are left out.
QStringList list();
// cover: of a document, its first page as a JPEG file; null for none, and for a project.
void add(const QString& path, const QByteArray& cover);
void clear();

} // namespace RecentFiles
