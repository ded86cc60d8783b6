#pragma once

#include <QByteArray>
#include <QString>

namespace TextDecoding {

// Text from a file that users edit with all kinds of editors: a byte order mark is taken off (and
// tells UTF-16 and UTF-32 from UTF-8), and what is not valid UTF-8 is read as Latin-1.
QString decoded(const QByteArray& data);

} // namespace TextDecoding
