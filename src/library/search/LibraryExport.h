#pragma once

#include "library/LibraryLayout.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

// A library's books and their pages as lines of JSON, for other search engines and databases.
namespace LibraryExport {

struct Options {
    bool books = true;
    bool pages = true;
    QString address; // of the library, with a slash at its end; null: addresses are relative
};

// Calls write with each line, without its end, until that returns false. Returns the IDs of books
// whose text can't be read; their pages are missing.
QStringList write(const LibraryLayout& library, const Options& options,
                  const std::function<bool(const QByteArray&)>& write);

} // namespace LibraryExport
