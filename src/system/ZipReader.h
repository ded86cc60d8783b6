#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <map>
#include <optional>

// Reads ZIP archives that anybody may have made.
namespace ZipReader {

// What an archive may have at most: entries, and bytes in all of them, unpacked.
struct Limits {
    int entries = 0;
    qint64 bytes = 0;
};

// Contents by name, a path separated by slashes.
using Entries = std::map<QString, QByteArray>;

// All that is in the archive; none when it can't be read, with the cause in *error.
std::optional<Entries> read(const QString& path, Limits limits, Message* error);

} // namespace ZipReader
