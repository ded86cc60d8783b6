#pragma once

#include <QByteArray>

namespace XMLRepair {

// A well-formed rendering (UTF-8) of XML that is not well-formed; empty when that can't be had or
// the text is too large to try.
QByteArray repaired(const QByteArray& text);

} // namespace XMLRepair
