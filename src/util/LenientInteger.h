#pragma once

#include <QStringView>

// Reads an integer leniently: leading blanks are skipped, reading ends at the first character that
// is no digit, and no digits at all are 0. Numbers beyond 32 bits stay at the nearest end.
int lenientInteger(QStringView text);
