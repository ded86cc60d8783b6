#pragma once

#include "picture/PageBitmap.h"

#include <cstddef>
#include <cstring>

// Calls take(first sample, count) for each run of equal pixels in a row, then endRow(). Ends early,
// with the result false, when take() returns false.
template <int Components, class Take, class EndRow>
bool visitRuns(const PageBitmap& bitmap, const Take& take, const EndRow& endRow) {
    // Runs are long: most of a page is paper. Pixels equal those before them when the samples equal
    // those one pixel before.
    constexpr std::ptrdiff_t block = std::ptrdiff_t{16} * Components;
    const unsigned char* row = bitmap.data();
    for (int y = 0; y < bitmap.height(); ++y, row += bitmap.stride()) {
        const unsigned char* const end = row + bitmap.stride();
        for (const unsigned char* start = row; start < end;) {
            const unsigned char* next = start + Components;
            while (end - next >= block && std::memcmp(next, next - Components, block) == 0)
                next += block;
            while (next < end && std::memcmp(next, start, Components) == 0)
                next += Components;
            if (!take(start, int(next - start) / Components))
                return false;
            start = next;
        }
        endRow();
    }
    return true;
}
