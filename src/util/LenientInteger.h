#pragma once

#include <QStringView>

// Parses an integer leniently: leading blanks are skipped, parsing ends at the first character that
// is not a digit, and no digits give 0. Values saturate at 32 bits.
int lenientInteger(QStringView text);
