#include "util/ColorCategory.h"

#include <algorithm>
#include <cstdint>

namespace {

// The largest float below 256, so that [0, 1] maps to 256 equal steps.
constexpr float steps = 255.99998474121094F;

int hexDigit(QChar letter) {
    const char16_t c = letter.unicode();
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

// Saturates on overflow.
std::uint32_t scanHexInt(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(u"0x", Qt::CaseInsensitive))
        text = text.mid(2);
    std::uint64_t value = 0;
    for (const QChar letter : text) {
        const int digit = hexDigit(letter);
        if (digit < 0)
            break;
        value = std::min<std::uint64_t>(value * 16 + std::uint64_t(digit), UINT32_MAX);
    }
    return std::uint32_t(value);
}

QString componentText(quint16 stored) {
    // QColor stores components as 16-bit integers, rounded. Using the lower end of a step maps a
    // half, which is on the border between two bytes, to the lower one.
    const float value = std::max(0.0F, (float(stored) - 0.5F) / 65535.0F);
    return QStringLiteral("%1").arg(int(value * steps), 2, 16, QLatin1Char('0'));
}

} // namespace

QColor MyColorOper::colorFromHexRGB(const QString& text) {
    const std::uint32_t value = scanHexInt(text);
    return {int(value >> 16U & 255U), int(value >> 8U & 255U), int(value & 255U)};
}

QString MyColorOper::colorToHexRGB(const QColor& color) {
    if (!color.isValid())
        return {};
    const QRgba64 rgb = color.toRgb().rgba64();
    return QStringLiteral("0x") + componentText(rgb.red()) + componentText(rgb.green()) +
           componentText(rgb.blue());
}
