#pragma once

#include "picture/PaletteBitmap.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// A colour of a picture, and how many pixels have it.
struct CountedColour {
    PaletteBitmap::Colour colour{};
    std::uint32_t count = 0;
    std::size_t id = 0;       // the caller's own
    std::uint32_t smooth = 0; // pixels, also the caller's own
};

// Similar colours and the one that stands for them.
struct ColourBox {
    PaletteBitmap::Colour mean{};
    std::size_t begin = 0; // indices into the sorted colours
    std::size_t end = 0;
    double error = 0; // sum of the squared errors of all pixels and channels
    int range = 0;    // the largest of a channel
};

// Sorts the colours into boxes: the worst is split in two until the error is no larger than wanted
// and no channel has a larger range, but into no more boxes than most. There must be a colour.
std::vector<ColourBox> medianCut(std::vector<CountedColour>& colours, std::size_t most,
                                 double wantedError, int wantedRange);
