#pragma once

#include "system/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <optional>

// An open file of a book with the headers that a browser gets for it.
struct BookFile {
    FileDescriptor descriptor;
    qint64 size;             // bytes
    QByteArray contentType;  // with the charset of texts
    QByteArray entityTag;    // changes with the file, quotation marks included
    QByteArray lastModified; // as an HTTP date

    // Opens the file that a request names, below the book's folder. target is the request's path as
    // sent: percent-encoded, possibly with a query; a trailing slash means "index.html" of that
    // folder. None for anything missing, hidden or not a regular file, and for names or links that
    // lead out of the folder.
    static std::optional<BookFile> open(const QString& folder, const QByteArray& target);
};
