#include "util/ColorCategory.h"

#include <gtest/gtest.h>

using MyColorOper::colorFromHexRGB;
using MyColorOper::colorToHexRGB;

TEST(ColorText, IsReadFromItsStart) {
    struct Case {
        const char* text;
        QColor color;
    };
    for (const auto& [text, color] :
         {Case{"0xffffff", Qt::white}, Case{"0xC0C0C0", QColor(192, 192, 192)},
          Case{"0X102030", QColor(16, 32, 48)}, Case{"  102030", QColor(16, 32, 48)},
          Case{"0x80FF0000", Qt::red}, Case{"0xff00 00", QColor(0, 255, 0)},
          Case{"0x12g456", QColor(0, 0, 0x12)}, Case{"0x123456789ABCDEF", Qt::white},
          Case{"", Qt::black}, Case{"red", Qt::black}, Case{"0x", Qt::black},
          Case{"#ff0000", Qt::black}})
        EXPECT_EQ(colorFromHexRGB(QString::fromLatin1(text)), color) << text;
    EXPECT_EQ(colorFromHexRGB(QString()), QColor(Qt::black));
}

TEST(ColorText, IsWrittenInLowerCaseWithoutAlpha) {
    EXPECT_EQ(colorToHexRGB(QColor(192, 192, 192)), QStringLiteral("0xc0c0c0"));
    EXPECT_EQ(colorToHexRGB(QColor(255, 0, 10, 20)), QStringLiteral("0xff000a"));
    EXPECT_EQ(colorToHexRGB(QColor::fromHsv(120, 255, 255)), QStringLiteral("0x00ff00"));
    EXPECT_TRUE(colorToHexRGB(QColor()).isNull());
}

TEST(ColorText, ComponentsFallIntoEqualSteps) {
    for (const auto& [value, text] : {std::pair{0.5F, "0x7f7f7f"},
                                      {0.75F, "0xbfbfbf"},
                                      {0.501F, "0x808080"},
                                      {1.0F, "0xffffff"},
                                      {0.0F, "0x000000"}})
        EXPECT_EQ(colorToHexRGB(QColor::fromRgbF(value, value, value)), QString::fromLatin1(text));
}

TEST(ColorText, SurvivesBeingReadAndWritten) {
    for (int value = 0; value < 256; ++value) {
        const QString text = QStringLiteral("0x%1").arg(value * 0x010101, 6, 16, QLatin1Char('0'));
        EXPECT_EQ(colorToHexRGB(colorFromHexRGB(text)), text);
    }
}
