#pragma once

#include <QString>
#include <limits>

class FlashTemplateProperty;

// The numbers that players take for a setting; others are brought into the range by them. A
// template gives it as the source of the setting's values: "0.1..10 s".
struct NumberRange {
    double least = -std::numeric_limits<double>::infinity();
    double most = std::numeric_limits<double>::infinity();
    QString unit; // a symbol, or empty

    // Without limits for a property that has none.
    static NumberRange of(const FlashTemplateProperty& property);

    bool hasLimits() const { return most < std::numeric_limits<double>::infinity(); }
    bool contains(double number) const { return number >= least && number <= most; }
};
