#include "util/ColorCategory.h"

#include <gtest/gtest.h>

using MyColorOper::colorFromHexRGB;
using MyColorOper::colorToHexRGB;

TEST(ColorText, IsReadFromItsStart) {
    const std::pair<const char*, QColor> cases[] = {{"0xffffff", Qt::white},
                                                    {"0xC0C0C0", QColor(192, 192, 192)},
                                                    {"0X102030", 0x102030},
                                                    {"  102030", 0x102030},
                                                    {"0x80FF0000", Qt::red},
                                                    {"0xff00 00", 0x00ff00},
                                                    {"0x12g456", QColor(0, 0, 0x12)},
                                                    {"0x123456789ABCDEF", Qt::white},
                                                    {"", Qt::black},
                                                    {"red", Qt::black},
                                                    {"0x", Qt::black},
                                                    {"#ff0000", Qt::black}};
    for (const auto& [text, color] : cases)
        EXPECT_EQ(colorFromHexRGB(QString::fromLatin1(text)), color) << text;
    EXPECT_EQ(colorFromHexRGB(QString()), QColor(Qt::black));
}

TEST(ColorText, IsWrittenInLowerCaseWithoutAlpha) {
    EXPECT_EQ(colorToHexRGB(QColor(255, 0, 10, 20)), "0xff000a");
    EXPECT_EQ(colorToHexRGB(QColor::fromHsv(120, 255, 255)), "0x00ff00");
    EXPECT_TRUE(colorToHexRGB(QColor()).isNull());
    for (const auto& [value, text] :
         {std::pair{0.5F, "0x7f7f7f"}, {0.75F, "0xbfbfbf"}, {0.501F, "0x808080"}})
        EXPECT_EQ(colorToHexRGB(QColor::fromRgbF(value, value, value)), QString::fromLatin1(text));
}
