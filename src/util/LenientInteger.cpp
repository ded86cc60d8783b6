#include "util/LenientInteger.h"

#include <algorithm>
#include <cstdint>
#include <limits>

int lenientInteger(QStringView text) {
    qsizetype position = 0;
    while (position < text.size() && text[position].isSpace())
        ++position;
    bool negative = false;
    if (position < text.size() && (text[position] == u'-' || text[position] == u'+'))
        negative = text[position++] == u'-';
    std::int64_t value = 0;
    for (; position < text.size(); ++position) {
        const char16_t digit = text[position].unicode();
        if (digit < u'0' || digit > u'9')
            break;
        value = std::min<std::int64_t>(value * 10 + (digit - u'0'),
                                       std::int64_t{std::numeric_limits<int>::max()} + 1);
    }
    value = negative ? -value : value;
    return static_cast<int>(std::min<std::int64_t>(value, std::numeric_limits<int>::max()));
}
