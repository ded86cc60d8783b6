#include "fuzz/Fuzz.h"
#include "util/ColorCategory.h"

#include <QRegularExpression>

// A colour as text; its first bytes are also taken for numbers from 0 to 1.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const QColor color = MyColorOper::colorFromHexRGB(QString::fromUtf8(input.rest()));
    Fuzz::require(color.isValid() && color.alpha() == 255, "every text is an opaque colour");

    // Colours between the steps of a byte, and of other models than RGB.
    const auto unit = [&input] { return float(input.byte()) / 255.0F; };
    const auto [first, second, third] = std::tuple(unit(), unit(), unit());
    static const QRegularExpression sixDigits("\\A0x[0-9a-f]{6}\\z");
    for (const QColor& any :
         {color, QColor::fromRgbF(first, second, third), QColor::fromHsvF(first, second, third),
          QColor::fromCmykF(first, second, third, 0)}) {
        const QString text = MyColorOper::colorToHexRGB(any);
        Fuzz::require(sixDigits.match(text).hasMatch(), "a colour is 0x and six small digits");
        const QColor read = MyColorOper::colorFromHexRGB(text);
        Fuzz::require(MyColorOper::colorToHexRGB(read) == text, "a text read is written the same");
        Fuzz::require(any != color || read == color, "a written colour reads the same");
    }
    return 0;
}
