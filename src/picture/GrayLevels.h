#pragma once

#include <array>
#include <cstdint>
#include <vector>

// A few levels of gray that stand for all others, with the least mean squared error.
struct GrayLevels {
    using Counts = std::array<std::uint32_t, 256>;

    // At most 16 levels for pixels of which there are so many of each level, but at least one.
    static GrayLevels of(const Counts& counts);

    std::vector<unsigned char> chosen;
    std::array<unsigned char, 256> indexOf{}; // into chosen, for levels in use
    double error = 0;                         // the sum over all pixels
};
