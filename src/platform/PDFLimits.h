#pragma once

#include <chrono>
#include <cstddef>

// What one page may cost. A page beyond a limit is drawn smaller or given up; the book is still
// made.
namespace PDFLimits {

// A poster of A0 size at twice its point size has 32 million pixels; colour at the limit takes
// 150 MB, which two workers can hold on any machine of today.
inline constexpr std::size_t maxBitmapPixels = 50'000'000;

// The JPEG format ends at 65,535; the engine's own arithmetic is safe well below that.
inline constexpr int maxBitmapSide = 32'000;

// Ordinary pages take a few hundredths of a second. A page that has drawn for this long is built to
// never end.
inline constexpr std::chrono::seconds maxPageTime{60};

// Memory that one engine instance may hold beside the bitmap.
inline constexpr std::size_t maxMuPDFMemory = std::size_t{1} << 30;

// All memory of a process that draws or reads: that, the bitmap, and its JPEG file in the making.
inline constexpr std::size_t maxProcessMemory = std::size_t{2} << 30;

// One page file. A JPEG file is smaller than its bitmap unless something went wrong.
inline constexpr std::size_t maxPageFileSize = std::size_t{256} << 20;

// Characters of an address, or of an entry of the outline. Longer ones are cut, or no addresses:
// browsers take none of a tenth of that.
inline constexpr int maxTextLength = 65'536;

// Characters that are read of one page. A page of small print has ten thousand.
inline constexpr std::size_t maxPageCharacters = 200'000;

// Entries of an outline.
inline constexpr std::size_t maxOutlineEntries = 100'000;

// Cache of decoded images and glyphs within that. More doesn't make real documents faster.
inline constexpr std::size_t maxStoreSize = std::size_t{64} << 20;

} // namespace PDFLimits
