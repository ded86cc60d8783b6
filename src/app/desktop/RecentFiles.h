#pragma once

#include <QStringList>

// Recently imported PDF files, kept across runs, most recent first.
namespace RecentFiles {

// Files that no longer exist are left out.
QStringList list();
void add(const QString& path);
void clear();

} // namespace RecentFiles
