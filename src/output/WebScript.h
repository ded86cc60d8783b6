#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

// Data for the player of a web book.
namespace WebScript {

// JSON that may stand in a script of an HTML page: no text in it can end the script or begin a
// comment.
QByteArray json(const QJsonArray& array);
QByteArray json(const QJsonObject& object);

// A file of that name (a path beneath "files", without its ending): a script, since browsers load
// scripts from a disk but no other data.
QByteArray file(const QString& name, const QByteArray& json);

// How such a file begins.
QByteArray start(const QString& name);

// The JSON of such a file.
QByteArray jsonIn(const QString& name, const QByteArray& script);

} // namespace WebScript
