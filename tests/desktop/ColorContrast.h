#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

// How well colours can be told apart, as WCAG 2 has it.
namespace ColorContrast {

inline double luminance(QRgb color) {
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

// From 1 for the same to 21.
inline double between(QRgb one, QRgb other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

} // namespace ColorContrast
