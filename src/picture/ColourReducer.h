#pragma once

#include "picture/MedianCut.h"
#include "picture/PageBitmap.h"
#include "picture/PaletteBitmap.h"

#include <cstdint>
#include <optional>
#include <vector>

// Reduces pictures of pages to few colours where nobody sees the difference: text, lines and plain
// fills have few colours, and the shades along the edges of glyphs may be rounded. Reuse one object
// for many pages: it keeps its buffers.
class ColourReducer {
public:
    ColourReducer();

    // A small error goes unseen along edges, but not in a gradient.
    struct Tolerance {
        double squaredError = 0; // the mean of a sample; 0 keeps every colour
        bool hasGradients = false;
    };

    // A gray picture gets at most 16 levels, one in colour 256 colours. Null when the error would
    // be larger. The result is valid until the next call.
    const PaletteBitmap* reduce(const PageBitmap& bitmap, Tolerance tolerance);

private:
    struct Slot {
        std::uint32_t rgb;
        std::uint32_t id; // index into iColours plus 1; 0 where free
    };
    // Pixels of one colour in a row; a count of 0 ends the row.
    struct Run {
        std::uint32_t id; // index into iColours
        int count;
    };
    // Colours that stand for those of the picture.
    struct Palette {
        std::vector<PaletteBitmap::Colour> colours;
        std::vector<unsigned char> indexOf; // into colours, by the index into iColours
        double error = 0;                   // sum of squares over all pixels and channels

        void add(const CountedColour& colour);
        void add(const std::vector<ColourBox>& boxes, const std::vector<CountedColour>& of);
    };

    std::optional<std::uint32_t> idOf(std::uint32_t rgb, std::size_t most);
    bool countColours(const PageBitmap& bitmap, const Tolerance& tolerance);
    void noteSmoothness(const Run& run, bool mayBeGradient);
    static bool takeSmooth(std::vector<CountedColour>& colours, std::size_t most, Palette& palette);
    std::optional<Palette> choosePalette(const PageBitmap& bitmap,
                                         const Tolerance& tolerance) const;

    std::vector<Slot> iSlots;            // hash table
    std::vector<CountedColour> iColours; // the picture's
    std::vector<Run> iRuns;
    PaletteBitmap iReduced;
};
