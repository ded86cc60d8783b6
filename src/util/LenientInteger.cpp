#include "util/LenientInteger.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

int lenientInteger(QStringView text) {
    // Saturates, too.
    const long long value = std::strtoll(text.trimmed().toLatin1().constData(), nullptr, 10);
    return int(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                     std::numeric_limits<int>::max()));
}
