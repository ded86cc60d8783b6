#pragma once

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

// A number of the file. A far point can't be told by a whole number; nothing of it is seen.
inline int roundedUnits(float number) {
    constexpr float furthest = 1e8F;
    return int(std::lrintf(std::fmin(std::fmax(number, -furthest), furthest)));
}

// Text of an SVG file under construction. It grows to a limit only, and never throws: it is written
// from within MuPDF's C functions. Numbers are whole: the file states their unit by a scale.
class SVGText {
public:
    explicit SVGText(std::size_t limit) : iLimit(limit), iBuffer(new char[limit]) {}

    void clear() {
        iSize = 0;
        iIsFull = false;
    }
    bool isFull() const { return iIsFull; }
    std::string_view view() const { return {iBuffer.get(), iSize}; }

    SVGText& operator<<(std::string_view text) {
        if (text.size() > iLimit - iSize) {
            iIsFull = true;
            return *this;
        }
        std::memcpy(iBuffer.get() + iSize, text.data(), text.size());
        iSize += text.size();
        return *this;
    }
    SVGText& operator<<(int number) {
        char text[16];
        const auto end = std::to_chars(text, text + sizeof(text), number).ptr;
        return *this << std::string_view(text, std::size_t(end - text));
    }
    // Separated from a number before it: a minus sign does that, too.
    SVGText& next(int number) {
        if (number >= 0 && iSize > 0 && isDigit(iBuffer[iSize - 1]))
            *this << " ";
        return *this << number;
    }
    // Of the Basic Multilingual Plane, in UTF-8.
    SVGText& letter(unsigned code) {
        constexpr unsigned mark = 0x80; // of a byte that is not the first one
        const auto rest = [code](int shift) {
            return char(mark | (code >> shift & (mark / 2 - 1)));
        };
        const char one[]{char(code)};
        const char two[]{char(0xC0 | code >> 6), rest(0)};
        const char three[]{char(0xE0 | code >> 12), rest(6), rest(0)};
        if (code < 0x80)
            return *this << std::string_view(one, sizeof(one));
        if (code < 0x800)
            return *this << std::string_view(two, sizeof(two));
        return *this << std::string_view(three, sizeof(three));
    }
    // With at most six digits, without an exponent.
    SVGText& operator<<(float number) {
        char text[64];
        const auto end =
            std::to_chars(text, text + sizeof(text), number, std::chars_format::fixed, 5).ptr;
        std::string_view shown(text, std::size_t(end - text));
        while (shown.ends_with('0'))
            shown.remove_suffix(1);
        if (shown.ends_with('.'))
            shown.remove_suffix(1);
        return *this << (shown == "-0" ? "0" : shown);
    }

private:
    static bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

    std::size_t iLimit;
    std::size_t iSize = 0;
    bool iIsFull = false;
    std::unique_ptr<char[]> iBuffer;
};
