#pragma once

#include <QStringList>

// The PDF files that were imported last, kept across runs, the latest first.
namespace RecentFiles {

// Files that are gone are left out.
QStringList list();
void add(const QString& path);
void clear();

} // namespace RecentFiles
