#pragma once

#include <array>
#include <cstdint>
#include <vector>

// A few levels of gray that stand for all others, with the least squared error.
struct GrayLevels {
    using Counts = std::array<std::uint32_t, 256>;

    // For pixels of which there are so many of each level, but at least one: 12 levels, or as many
    // more as it takes for an error that is no larger than wanted, up to 16.
    static GrayLevels of(const Counts& counts, double wantedError);

    std::vector<unsigned char> chosen;
    std::array<unsigned char, 256> indexOf{}; // into chosen, for levels in use
    double error = 0;                         // the sum over all pixels
};
