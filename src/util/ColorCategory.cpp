#include "util/ColorCategory.h"

#include <QRegularExpression>
#include <algorithm>
#include <charconv>
#include <cstdint>

namespace {

// The largest float below 256, so that [0, 1] maps to 256 equal steps.
constexpr float steps = 255.99998474121094F;

// Saturates on overflow.
std::uint32_t scanHexInt(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(u"0x", Qt::CaseInsensitive))
        text = text.mid(2);
    const QByteArray digits = text.toLatin1();
    std::uint32_t value = 0;
    const auto result = std::from_chars(digits.begin(), digits.end(), value, 16);
    return result.ec == std::errc::result_out_of_range ? UINT32_MAX : value;
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

QString MyColorOper::hexRGBFromText(const QString& text) {
    static const QRegularExpression digits(QStringLiteral("^(?:0[xX]|#)?([0-9a-fA-F]{6})$"));
    static const QRegularExpression shortOrName(QStringLiteral("^(#[0-9a-fA-F]{3}|[a-zA-Z ]+)$"));
    const QString written = text.trimmed();
    if (const auto match = digits.match(written); match.hasMatch())
        return QStringLiteral("0x") + match.captured(1);
    const QColor color =
        shortOrName.match(written).hasMatch() ? QColor(written) : QColor(QColor::Invalid);
    return color.isValid() && color.alpha() == 255 ? colorToHexRGB(color) : QString();
}
