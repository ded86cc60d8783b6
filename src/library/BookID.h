#pragma once

#include <QByteArray>
#include <QString>

// The IDs of books in a library: names of folders, and parts of addresses. Letter case does not
// distinguish them, as on many disks.
namespace BookID {

// Why a text can't be an ID, in English; null when it can. IDs have 1 to 100 letters of ASCII,
// digits, dots, hyphens and underscores, begin with a letter or digit, and do not end with a dot.
QString problemWith(const QString& id);

// The ID of a document without one: readable, always the same for the same path, and different for
// different paths. The path is that in the list, or below the folder that is the list.
QString forPath(const QString& path);

// Lower-case words of ASCII joined by hyphens, cut to that many characters; empty for a name
// without any.
QString asWords(const QString& name, qsizetype longest);

// 16 bytes, always the same for the same ID in any letter case.
QByteArray digest(const QString& id);

// The shard, from 0, that makes a book with an ID of this digest, of this many.
int shardOf(const QByteArray& digest, int count);

} // namespace BookID
