#pragma once

#include <QStringList>

class QMimeData;

namespace DroppedFiles {

// Paths of files and folders that are dragged, and the addresses of those that are elsewhere.
QStringList paths(const QMimeData& dragged);

} // namespace DroppedFiles
