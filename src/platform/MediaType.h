#pragma once

#include <QByteArray>
#include <QString>

// What kind of data a file holds, as the web names it.
namespace MediaType {

// By the ending of the file's name; "application/octet-stream" for one that books don't have.
QByteArray ofFile(const QString& name);

// The same with the character set behind the kinds that are text.
QByteArray withCharacterSet(const QString& name);

} // namespace MediaType
