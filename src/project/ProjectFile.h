#pragma once

#include "base/Message.h"
#include "project/Project.h"

#include <QByteArray>
#include <QString>

// A project as a file: a ZIP archive of its description and a small picture of the first page.
namespace ProjectFile {

inline const QString extension = QStringLiteral("folvero");

// By its name.
bool isProject(const QString& path);

// Throws PlatformException that names the file and the cause.
Project read(const QString& path);

// The picture of the first page, a JPEG file; null when there is none.
QByteArray cover(const QString& path);

// Replaces the file as a whole, or keeps it and returns false with the cause in *error. Paths are
// stored relative to the file's folder, too. cover may be null.
bool write(Project project, const QByteArray& cover, const QString& path, Message* error);

} // namespace ProjectFile
