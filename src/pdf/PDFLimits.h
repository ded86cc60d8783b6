#pragma once

#include <chrono>
#include <cstddef>

// Limits per page. A page beyond one is drawn smaller or fails; the book is made all the same.
namespace PDFLimits {

// An A0 poster at twice its size in points has 32 million pixels. In colour a bitmap at the limit
// takes 150 MB, which two workers can afford on any current machine.
inline constexpr std::size_t maxBitmapPixels = 50'000'000;

// JPEG allows up to 65,535; MuPDF's own arithmetic is safe well below that.
inline constexpr int maxBitmapSide = 32'000;

// Ordinary pages take a few hundredths of a second. A page that is still drawing after this time
// was built to hang.
inline constexpr std::chrono::seconds maxPageTime{60};

// The time and size of a document that is merged from others.
inline constexpr std::chrono::seconds maxMergeTime{600};
inline constexpr std::size_t maxMergedSize = std::size_t{8} << 30;

// Memory that one MuPDF context may allocate beside the bitmap.
inline constexpr std::size_t maxMuPDFMemory = std::size_t{1} << 30;

// Total memory of a process that draws or reads: MuPDF's, the bitmap, and the JPEG file being
// encoded.
inline constexpr std::size_t maxProcessMemory = std::size_t{2} << 30;

// Size of one page file. A JPEG file is smaller than its bitmap unless something went wrong.
inline constexpr std::size_t maxPageFileSize = std::size_t{256} << 20;

// Size of a page's vectors, unpacked: pictures in them, and some megabytes of drawings and glyphs.
inline constexpr std::size_t maxVectorBytes = std::size_t{32} << 20;

// Characters of an address or an outline entry. Longer entries are cut, longer addresses dropped:
// browsers do not accept even a tenth of that.
inline constexpr int maxTextLength = 65'536;

// Characters of text read from one page. A page of small print has ten thousand.
inline constexpr std::size_t maxPageCharacters = 200'000;

// Images, lines and areas of one page whose places are kept, to find its figures.
inline constexpr std::size_t maxPageMarks = 2'000;

// Entries of an outline.
inline constexpr std::size_t maxOutlineEntries = 100'000;

// MuPDF's cache of decoded images and glyphs, part of the memory above. A larger one does not make
// real documents faster.
inline constexpr std::size_t maxStoreSize = std::size_t{64} << 20;

} // namespace PDFLimits
