#pragma once

#include <QByteArray>
#include <QString>

namespace TextDecoding {

// Decodes a file that users edit with arbitrary editors: a byte order mark is removed (and selects
// UTF-16 or UTF-32), and anything that is not valid UTF-8 is read as Latin-1.
QString decoded(const QByteArray& data);

} // namespace TextDecoding
