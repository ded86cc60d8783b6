#pragma once

#include <QByteArray>
#include <QString>

// Media types (MIME types) of files.
namespace MediaType {

// By the file name's extension; "application/octet-stream" for one that is not used in books.
QByteArray ofFile(const QString& name);

// The same, with a charset parameter for text types.
QByteArray withCharacterSet(const QString& name);

} // namespace MediaType
