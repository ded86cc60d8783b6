#include "fuzz/Fuzz.h"
#include "util/ColorCategory.h"

#include <algorithm>

namespace {

bool isColourText(const QString& text) {
    const QStringView digits = QStringView(text).mid(2);
    return text.size() == 8 && text.startsWith(QStringLiteral("0x")) &&
           std::all_of(digits.begin(), digits.end(), [](QChar digit) {
               return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f');
           });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const QColor color = MyColorOper::colorFromHexRGB(QString::fromUtf8(input.rest()));
    Fuzz::require(color.isValid() && color.alpha() == 255, "every text is an opaque colour");
    const QString text = MyColorOper::colorToHexRGB(color);
    Fuzz::require(isColourText(text), "a colour is written as 0x and six small digits");
    Fuzz::require(MyColorOper::colorFromHexRGB(text) == color, "a written colour reads the same");

    // Colours between the steps of a byte, and of other models than RGB.
    const auto unit = [&input] { return float(input.byte()) / 255.0F; };
    const float first = unit();
    const float second = unit();
    const float third = unit();
    for (const QColor& other :
         {QColor::fromRgbF(first, second, third), QColor::fromHsvF(first, second, third),
          QColor::fromCmykF(first, second, third, 0)}) {
        const QString written = MyColorOper::colorToHexRGB(other);
        Fuzz::require(isColourText(written), "colours of every model are written alike");
        Fuzz::require(MyColorOper::colorToHexRGB(MyColorOper::colorFromHexRGB(written)) == written,
                      "writing what was read changes nothing");
    }
    return 0;
}
