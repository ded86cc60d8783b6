#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

// Data for the player of a web book.
namespace WebScript {

// JSON that is safe inside a script element of an HTML page: no text in it can close the element or
// start a comment.
QByteArray json(const QJsonArray& array);
QByteArray json(const QJsonObject& object);

// The file at that path in a book: a script, since browsers load scripts from disk but no other
// data.
QByteArray file(const QString& path, const QByteArray& json);

// How such a file begins.
QByteArray start(const QString& path);

// The JSON of such a file.
QByteArray jsonIn(const QString& path, const QByteArray& script);

} // namespace WebScript
