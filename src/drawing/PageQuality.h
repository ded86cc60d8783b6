#pragma once

// The JPEG compression factor (0 smallest, 1 best) for a quality of 0 to 100. Integer division:
// every quality below 100 gives the smallest files.
constexpr float compressionFactor(int quality) {
    const int wholeHundreds = quality / 100;
    return static_cast<float>(wholeHundreds);
}
