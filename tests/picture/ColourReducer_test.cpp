#include "picture/ColourReducer.h"

#include "picture/MedianCut.h"
#include "picture/PNGEncoder.h"

#include <QImage>
#include <array>
#include <gtest/gtest.h>

namespace {

using Colour = PaletteBitmap::Colour;
using ColourOf = Colour (*)(int index, int count);

Colour levelOfGray(int index, int count) {
    const auto level = static_cast<unsigned char>(index * 255 / std::max(1, count - 1));
    return {level, level, level};
}

Colour darkGray(int index, int /*count*/) {
    return levelOfGray(index, 256);
}

Colour farColour(int index, int /*count*/) {
    return {static_cast<unsigned char>(index * 37), static_cast<unsigned char>(index / 7),
            static_cast<unsigned char>(index * 101)};
}

// In groups of ten that hardly differ.
Colour nearColour(int index, int /*count*/) {
    const int group = index / 10;
    return {static_cast<unsigned char>(group * 8 + index % 2),
            static_cast<unsigned char>(255 - group * 5),
            static_cast<unsigned char>(index % 10 / 2)};
}

Colour shade(int index, int count) {
    return {static_cast<unsigned char>(index * 255 / count), 99,
            static_cast<unsigned char>(255 - index * 200 / count)};
}

// A picture in which the colours take turns.
PageBitmap picture(int width, int components, ColourOf colourOf, int count, int run) {
    PageBitmap bitmap;
    bitmap.resize(width, 27, components);
    for (int i = 0; i < width * bitmap.height(); ++i) {
        const Colour colour = colourOf(i / run % count, count);
        std::copy_n(colour.begin(), components, bitmap.data() + std::ptrdiff_t(i) * components);
    }
    return bitmap;
}

// The largest difference of a sample to the picture as Qt reads it.
int difference(const PageBitmap& bitmap, const QImage& image) {
    int largest = 0;
    for (int i = 0; i < bitmap.width() * bitmap.height(); ++i) {
        const QRgb pixel = image.pixel(i % bitmap.width(), i / bitmap.width());
        const std::array channels{qRed(pixel), qGreen(pixel), qBlue(pixel)};
        for (int channel = 0; channel < bitmap.components(); ++channel)
            largest = std::max(largest, std::abs(channels[std::size_t(channel)] -
                                                 bitmap.data()[i * bitmap.components() + channel]));
    }
    return largest;
}

} // namespace

TEST(ColourReducer, RoundsColoursWhereNobodySeesIt) {
    constexpr int notReduced = -1;
    const struct {
        const char* name;
        int components;
        ColourOf colourOf;
        int count;
        int bits;
        int error;
        bool hasGradients = false;
        int run = 3; // pixels
    } cases[] = {
        {"paper", 1, levelOfGray, 1, 1, 0},      {"ink", 1, levelOfGray, 2, 1, 0},
        {"levels", 1, levelOfGray, 4, 2, 0},     {"text", 1, levelOfGray, 16, 4, 0},
        {"shadow", 1, darkGray, 24, 4, 1},       {"scan", 1, levelOfGray, 64, 4, notReduced},
        {"pair", 3, farColour, 2, 1, 0},         {"three", 3, farColour, 3, 2, 0},
        {"few", 3, farColour, 16, 4, 0},         {"chart", 3, farColour, 250, 8, 8},
        {"glyphs", 3, nearColour, 300, 8, 8},    {"photograph", 3, farColour, 900, 8, notReduced},
        {"gradient", 3, shade, 400, 8, 2, true}, {"fills", 3, nearColour, 100, 8, 2, false, 24}};
    ColourReducer reducer;
    PNGEncoder encoder;
    for (const auto& [name, components, colourOf, count, bits, error, hasGradients, run] : cases) {
        for (const int width : {111, 112, 117}) {
            SCOPED_TRACE(testing::Message() << name << ' ' << width);
            const PageBitmap bitmap = picture(width, components, colourOf, count, run);
            EXPECT_EQ(reducer.reduce(bitmap, {}) != nullptr, count <= (components == 1 ? 16 : 256));
            const PaletteBitmap* reduced = reducer.reduce(bitmap, {3, hasGradients});
            ASSERT_EQ(reduced != nullptr, error != notReduced);
            if (!reduced)
                continue;
            const QImage image = QImage::fromData(encoder.encode(*reduced), "PNG");
            ASSERT_EQ(image.size(), QSize(width, bitmap.height()));
            EXPECT_EQ(reduced->bitsPerPixel, bits);
            EXPECT_LE(difference(bitmap, image), error);
        }
    }
}

TEST(MedianCut, SeparatesAColourFromManyThatAreFarFromIt) {
    std::vector<CountedColour> colours;
    for (const unsigned char level :
         std::initializer_list<unsigned char>{0, 1, 2, 3, 200, 4, 5, 6, 7, 8})
        colours.push_back({{level, level, level}, 1});
    const auto boxes = medianCut(colours, 2, 0, 0);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(std::min(boxes[0].range, boxes[1].range), 0);
}
