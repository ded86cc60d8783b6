#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <map>

// A course in the form of SCORM 1.2, which learning platforms take: a ZIP archive of the files of a
// web book and a manifest.
namespace CoursePackage {

// The manifest's name in the archive.
inline const QString manifestName = QStringLiteral("imsmanifest.xml");

// page and files: paths in the archive; the page is the one that the platform opens.
QByteArray manifest(const QString& title, const QString& page, const QStringList& files);

// Writes the archive. files: paths in the archive, and where their contents are. Null when it is
// complete.
Message write(const QString& path, const std::map<QString, QString>& files,
              const QByteArray& manifest);

// Whether the file is an archive that this wrote.
bool isOne(const QString& path);

} // namespace CoursePackage
