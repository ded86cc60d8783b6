#include "picture/ColourReducer.h"

#include "picture/GrayLevels.h"
#include "picture/PixelRuns.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

using Colour = PaletteBitmap::Colour;

// A picture with more colours is no text, nor a drawing.
constexpr std::size_t maxShades = 6000;
constexpr unsigned slotBits = 14;
constexpr std::size_t maxColours = 256;

// More take a byte a pixel.
constexpr std::size_t fewColours = 16;

// Colours of more pixels than this share, of one in so many, are those of fills and texts, which
// stay as they are.
constexpr std::size_t exactColours = 32;
constexpr double exactShare = 500;

// The mean squared error of a sample from which on more colours are a waste. JPEG of good quality
// has 2.4 on a page of text.
constexpr double wantedSquaredError = 2.2;

// Of the colours that one stands for, in a channel: nobody sees a difference of half of the first
// along an edge (twelve levels of gray are half as far apart), or of half of the second in a
// gradient.
constexpr int edgeRange = 48;
constexpr int gradientRange = 3;

// What fills without gradients may take of the palette: edges need the rest.
constexpr std::size_t maxFills = 160;

int bitsFor(std::size_t colours) {
    if (colours <= 2)
        return 1;
    if (colours <= 4)
        return 2;
    return colours <= 16 ? 4 : 8;
}

void reset(PaletteBitmap& to, const PageBitmap& from, std::vector<Colour> palette) {
    to.width = from.width();
    to.height = from.height();
    to.bitsPerPixel = bitsFor(palette.size());
    to.palette = std::move(palette);
    to.rows.resize(to.stride() * std::size_t(to.height));
    for (std::size_t y = 0; y < std::size_t(to.height); ++y)
        to.rows[y * to.stride()] = 0;
}

double samplesOf(const PageBitmap& bitmap) {
    return double(bitmap.width()) * bitmap.height() * bitmap.components();
}

// Of all samples of a picture, where any may differ.
double wantedErrorOf(const PageBitmap& bitmap, const ColourReducer::Tolerance& tolerance) {
    return tolerance.squaredError > 0 ? wantedSquaredError * samplesOf(bitmap) : 0;
}

// Fills the rows of a picture run by run.
class RowPacker {
public:
    explicit RowPacker(PaletteBitmap& to)
        : iBits(to.bitsPerPixel), iPerByte(8 / to.bitsPerPixel), iOut(to.rows.data() + 1) {}

    void add(unsigned index, int count) {
        for (; count > 0 && iFilled > 0; --count)
            addOne(index);
        const int bytes = count / iPerByte;
        unsigned byte = index;
        for (int bits = iBits; bits < 8; bits *= 2)
            byte |= byte << bits;
        std::memset(iOut, int(byte), std::size_t(bytes));
        iOut += bytes;
        for (count -= bytes * iPerByte; count > 0; --count)
            addOne(index);
    }
    void endRow() {
        while (iFilled > 0)
            addOne(0);
        ++iOut;
    }

private:
    void addOne(unsigned index) {
        iByte = iByte << iBits | index;
        if (++iFilled == iPerByte) {
            *iOut++ = static_cast<unsigned char>(iByte);
            iFilled = 0;
        }
    }

    int iBits;
    int iPerByte;
    unsigned char* iOut;
    unsigned iByte = 0;
    int iFilled = 0; // pixels
};

// Calls take() for each eight pixels of a row, the last of which may be fewer: with their levels,
// the number of pixels, and whether all are the same. Most are, being paper.
template <class Take>
void visitOctets(const unsigned char* row, int width, const Take& take) {
    constexpr int size = 8;
    constexpr std::uint64_t ones = 0x0101010101010101;
    for (int x = 0; x < width; x += size) {
        const int count = std::min(size, width - x);
        std::uint64_t octet = 0;
        std::memcpy(&octet, row + x, std::size_t(count));
        take(row + x, count, octet == row[x] * ones);
    }
}

GrayLevels::Counts countLevels(const PageBitmap& bitmap) {
    // Neighbouring pixels are often equal: counted in one table, each would wait for the one
    // before.
    std::array<GrayLevels::Counts, 2> tables{};
    for (int y = 0; y < bitmap.height(); ++y) {
        visitOctets(bitmap.data() + std::ptrdiff_t(y) * bitmap.stride(), bitmap.width(),
                    [&tables](const unsigned char* levels, int count, bool areSame) {
                        if (areSame) {
                            tables[0][*levels] += std::uint32_t(count);
                            return;
                        }
                        for (int i = 0; i < count; ++i)
                            ++tables[std::size_t(i) & 1][levels[i]];
                    });
    }
    for (std::size_t i = 0; i < tables[0].size(); ++i)
        tables[0][i] += tables[1][i];
    return tables[0];
}

template <int Bits>
void packGray(const PageBitmap& bitmap, const GrayLevels& levels, PaletteBitmap& to) {
    // Eight pixels of one level each.
    std::array<std::uint64_t, 256> octets{};
    for (std::size_t level = 0; level < octets.size(); ++level) {
        for (int i = 0; i < 8; ++i)
            octets[level] = octets[level] << Bits | levels.indexOf[level];
    }
    for (int y = 0; y < bitmap.height(); ++y) {
        unsigned char* out = &to.rows[std::size_t(y) * to.stride() + 1];
        visitOctets(bitmap.data() + std::ptrdiff_t(y) * bitmap.stride(), bitmap.width(),
                    [&](const unsigned char* level, int count, bool areSame) {
                        std::uint64_t packed = areSame ? octets[*level] : 0;
                        for (int i = 0; i < count && !areSame; ++i)
                            packed |= std::uint64_t{levels.indexOf[level[i]]} << (Bits * (7 - i));
                        packed = qToBigEndian(packed << (64 - 8 * Bits));
                        // A constant size is copied at once.
                        if (count == 8)
                            std::memcpy(out, &packed, Bits);
                        else
                            std::memcpy(out, &packed, std::size_t(count * Bits + 7) / 8);
                        out += Bits;
                    });
    }
}

void packGray(const PageBitmap& bitmap, const GrayLevels& levels, PaletteBitmap& to) {
    if (to.bitsPerPixel == 1)
        packGray<1>(bitmap, levels, to);
    else if (to.bitsPerPixel == 2)
        packGray<2>(bitmap, levels, to);
    else
        packGray<4>(bitmap, levels, to);
}

bool reduceGray(const PageBitmap& bitmap, const ColourReducer::Tolerance& tolerance,
                PaletteBitmap& to) {
    const GrayLevels levels = GrayLevels::of(countLevels(bitmap), wantedErrorOf(bitmap, tolerance));
    if (levels.error > tolerance.squaredError * samplesOf(bitmap))
        return false;
    std::vector<Colour> palette;
    for (const unsigned char level : levels.chosen)
        palette.push_back({level, level, level});
    reset(to, bitmap, std::move(palette));
    packGray(bitmap, levels, to);
    return true;
}

} // namespace

ColourReducer::ColourReducer() : iSlots(std::size_t{1} << slotBits) {}

// Index of a colour in iColours; none when there are too many.
std::optional<std::uint32_t> ColourReducer::idOf(std::uint32_t rgb, std::size_t most) {
    constexpr std::uint32_t spread = 0x9E3779B1;
    constexpr std::size_t last = (std::size_t{1} << slotBits) - 1;
    std::size_t slot = (rgb * spread) >> (32 - slotBits);
    while (iSlots[slot].id != 0 && iSlots[slot].rgb != rgb)
        slot = (slot + 1) & last;
    if (iSlots[slot].id == 0) {
        if (iColours.size() == most)
            return std::nullopt;
        const auto byte = [rgb](int shift) { return static_cast<unsigned char>(rgb >> shift); };
        iColours.push_back({{byte(16), byte(8), byte(0)}, 0, iColours.size()});
        iSlots[slot] = {rgb, std::uint32_t(iColours.size())};
    }
    return iSlots[slot].id - 1;
}

// False when there are too many.
bool ColourReducer::countColours(const PageBitmap& bitmap, const Tolerance& tolerance) {
    const std::size_t most = tolerance.squaredError > 0 ? maxShades : maxColours;
    std::fill(iSlots.begin(), iSlots.end(), Slot{});
    iColours.clear();
    iRuns.clear();
    return visitRuns<3>(
        bitmap,
        [&](const unsigned char* sample, int count) {
            const auto id = idOf(std::uint32_t{sample[0]} << 16 | std::uint32_t{sample[1]} << 8 |
                                     std::uint32_t{sample[2]},
                                 most);
            if (!id)
                return false;
            iColours[*id].count += std::uint32_t(count);
            noteSmoothness({*id, count}, tolerance.hasGradients);
            iRuns.push_back({*id, count});
            return true;
        },
        [&] {
            iRuns.push_back({0, 0});
        });
}

// Counts a run as smooth where another colour would be seen: in an area of one colour, and in a
// gradient with the run before it, if that is similar.
void ColourReducer::noteSmoothness(const Run& run, bool mayBeGradient) {
    constexpr int longRun = 8;
    constexpr int smallStep = 8;
    CountedColour& colour = iColours[run.id];
    if (run.count >= longRun)
        colour.smooth += std::uint32_t(run.count);
    if (!mayBeGradient || iRuns.empty() || iRuns.back().count == 0)
        return;
    CountedColour& before = iColours[iRuns.back().id];
    for (std::size_t i = 0; i < colour.colour.size(); ++i) {
        if (std::abs(colour.colour[i] - before.colour[i]) > smallStep)
            return;
    }
    colour.smooth += std::uint32_t(run.count);
    before.smooth += std::uint32_t(iRuns.back().count);
}

void ColourReducer::Palette::add(const CountedColour& colour) {
    indexOf[colour.id] = static_cast<unsigned char>(colours.size());
    colours.push_back(colour.colour);
}

void ColourReducer::Palette::add(const std::vector<ColourBox>& boxes,
                                 const std::vector<CountedColour>& of) {
    for (const ColourBox& box : boxes) {
        for (std::size_t i = box.begin; i < box.end; ++i)
            indexOf[of[i].id] = static_cast<unsigned char>(colours.size());
        colours.push_back(box.mean);
        error += box.error;
    }
}

// Moves the colours of fills and gradients to the palette, to at most so many. False when they take
// more.
bool ColourReducer::takeSmooth(std::vector<CountedColour>& colours, std::size_t most,
                               Palette& palette) {
    const auto smooth =
        std::partition(colours.begin(), colours.end(),
                       [](const CountedColour& one) { return 2 * one.smooth < one.count; });
    std::vector<CountedColour> taken(smooth, colours.end());
    colours.erase(smooth, colours.end());
    if (taken.empty())
        return true;
    const auto boxes = medianCut(taken, most, std::numeric_limits<double>::max(), gradientRange);
    palette.add(boxes, taken);
    return std::all_of(boxes.begin(), boxes.end(),
                       [](const ColourBox& box) { return box.range <= gradientRange; });
}

// Few colours, or those of a picture that has to keep them, stay as they are. None when gradients
// take too many.
std::optional<ColourReducer::Palette>
ColourReducer::choosePalette(const PageBitmap& bitmap, const Tolerance& tolerance) const {
    const double pixels = double(bitmap.width()) * bitmap.height();
    Palette palette;
    palette.indexOf.resize(iColours.size());
    if (iColours.size() <= (tolerance.squaredError > 0 ? fewColours : maxColours)) {
        for (const CountedColour& colour : iColours)
            palette.add(colour);
        return palette;
    }
    std::vector<CountedColour> rest = iColours;
    auto exact = rest.begin() + std::ptrdiff_t(std::min(exactColours, rest.size()));
    std::nth_element(
        rest.begin(), exact, rest.end(),
        [](const CountedColour& a, const CountedColour& b) { return a.count > b.count; });
    exact = std::partition(rest.begin(), exact, [&](const CountedColour& one) {
        return one.count * exactShare > pixels;
    });
    for (auto one = rest.begin(); one != exact; ++one)
        palette.add(*one);
    rest.erase(rest.begin(), exact);
    const std::size_t room = maxColours - palette.colours.size() - 1;
    if (!takeSmooth(rest, tolerance.hasGradients ? room : maxFills, palette) &&
        tolerance.hasGradients)
        return std::nullopt;
    if (!rest.empty())
        palette.add(medianCut(rest, maxColours - palette.colours.size(),
                              wantedErrorOf(bitmap, tolerance), edgeRange),
                    rest);
    return palette;
}

const PaletteBitmap* ColourReducer::reduce(const PageBitmap& bitmap, Tolerance tolerance) {
    if (bitmap.components() == 1) {
        if (tolerance.hasGradients)
            tolerance.squaredError = 0;
        return reduceGray(bitmap, tolerance, iReduced) ? &iReduced : nullptr;
    }
    if (!countColours(bitmap, tolerance))
        return nullptr;
    std::optional<Palette> palette = choosePalette(bitmap, tolerance);
    if (!palette || palette->error > tolerance.squaredError * samplesOf(bitmap))
        return nullptr;
    reset(iReduced, bitmap, std::move(palette->colours));
    RowPacker packer(iReduced);
    for (const Run& run : iRuns) {
        if (run.count == 0)
            packer.endRow();
        else
            packer.add(palette->indexOf[run.id], run.count);
    }
    return &iReduced;
}
