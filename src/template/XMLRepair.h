#pragma once

#include <QByteArray>

namespace XMLRepair {

// Repairs XML that is not well-formed; the result is UTF-8. Empty when that fails or the text is
// too large.
QByteArray repaired(const QByteArray& text);

} // namespace XMLRepair
