#pragma once

#include <array>
#include <cstddef>
#include <vector>

// A picture of at most 256 colours, as a PNG file holds it.
struct PaletteBitmap {
    using Colour = std::array<unsigned char, 3>; // RGB

    int width = 0;
    int height = 0;
    int bitsPerPixel = 8;        // 1, 2, 4 or 8
    std::vector<Colour> palette; // one for each index in use
    // Top-down, each row of whole bytes, pixels from the high bits down, after a byte 0: the type
    // of its filter, none.
    std::vector<unsigned char> rows;

    // From row to row, in bytes.
    std::size_t stride() const {
        return 1 + (std::size_t(width) * std::size_t(bitsPerPixel) + 7) / 8;
    }
};
