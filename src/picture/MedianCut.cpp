#include "picture/MedianCut.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t channels = 3;

struct Box : ColourBox {
    std::size_t widest = 0; // the channel with the largest error
};

Box measured(const std::vector<CountedColour>& colours, std::size_t begin, std::size_t end) {
    double count = 0;
    std::array<double, channels> sums{};
    std::array<double, channels> squares{};
    PaletteBitmap::Colour least{255, 255, 255};
    PaletteBitmap::Colour most{};
    for (std::size_t i = begin; i < end; ++i) {
        const double weight = colours[i].count;
        count += weight;
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const double value = colours[i].colour[channel];
            sums[channel] += weight * value;
            squares[channel] += weight * value * value;
            least[channel] = std::min(least[channel], colours[i].colour[channel]);
            most[channel] = std::max(most[channel], colours[i].colour[channel]);
        }
    }
    Box box;
    box.begin = begin;
    box.end = end;
    double largest = -1;
    for (std::size_t channel = 0; channel < channels; ++channel) {
        const double mean = sums[channel] / count;
        const double error = std::max(0.0, squares[channel] - sums[channel] * mean);
        box.mean[channel] = static_cast<unsigned char>(std::lround(mean));
        box.error += error;
        box.range = std::max(box.range, most[channel] - least[channel]);
        if (error > largest) {
            largest = error;
            box.widest = channel;
        }
    }
    return box;
}

// At the mean of the widest channel, which separates what is far apart. Returns the index of the
// first colour beyond it; neither side is empty.
std::size_t split(std::vector<CountedColour>& colours, const Box& box) {
    const auto begin = colours.begin() + std::ptrdiff_t(box.begin);
    const auto end = colours.begin() + std::ptrdiff_t(box.end);
    const auto value = [&box](const CountedColour& one) { return one.colour[box.widest]; };
    auto middle = std::partition(
        begin, end, [&](const CountedColour& one) { return value(one) <= box.mean[box.widest]; });
    if (middle == begin || middle == end) {
        middle = begin + (end - begin) / 2;
        std::nth_element(begin, middle, end, [&](const CountedColour& a, const CountedColour& b) {
            return value(a) < value(b);
        });
    }
    return std::size_t(middle - colours.begin());
}

} // namespace

std::vector<ColourBox> medianCut(std::vector<CountedColour>& colours, std::size_t most,
                                 double wantedError, int wantedRange) {
    // Boxes that are too wide come first: a few pixels of another colour are seen, too.
    const auto isBetter = [wantedRange](const Box& a, const Box& b) {
        const bool isWide = a.range > wantedRange;
        const bool isOtherWide = b.range > wantedRange;
        return isWide != isOtherWide ? isOtherWide : a.error < b.error;
    };
    std::vector<Box> boxes{measured(colours, 0, colours.size())};
    double sum = boxes.front().error;
    while (boxes.size() < most) {
        Box& worst = *std::max_element(boxes.begin(), boxes.end(), isBetter);
        if (worst.range <= wantedRange && sum <= wantedError)
            break;
        const std::size_t middle = split(colours, worst);
        const Box upper = measured(colours, middle, worst.end);
        sum -= worst.error;
        worst = measured(colours, worst.begin, middle);
        sum += worst.error + upper.error;
        boxes.push_back(upper);
    }
    return {boxes.begin(), boxes.end()};
}
