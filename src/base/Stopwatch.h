#pragma once

#include <chrono>

// Measures seconds between laps.
class Stopwatch {
public:
    double lap() {
        const auto now = std::chrono::steady_clock::now();
        const double seconds = std::chrono::duration<double>(now - iStart).count();
        iStart = now;
        return seconds;
    }

private:
    std::chrono::steady_clock::time_point iStart = std::chrono::steady_clock::now();
};
