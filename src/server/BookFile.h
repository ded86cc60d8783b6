#pragma once

#include "platform/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <optional>

// A file of a book, open, with what a browser is told of it.
struct BookFile {
    FileDescriptor descriptor;
    qint64 size;             // bytes
    QByteArray contentType;  // with the encoding of texts
    QByteArray entityTag;    // changes with the file, quotation marks included
    QByteArray lastModified; // as HTTP writes a date

    // Opens what a request names, beneath the book's folder. The target is the path of an address
    // as the browser sends it: escaped, and perhaps with a question after it; one that ends in a
    // slash means the "index.html" of that folder. None for whatever is missing, hidden or no file,
    // and for a name or a link that would lead out of the folder.
    static std::optional<BookFile> open(const QString& folder, const QByteArray& target);
};
