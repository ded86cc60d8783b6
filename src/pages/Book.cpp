#include "pages/Book.h"

#include "pages/FlashPageSource.h"
#include "pages/PDFToSWFPageConverter.h"

#include <cmath>

int Book::wholePoints(double length) {
    constexpr double longest = 25'000'000; // times the width of thumbnails it has 32 bits
    return int(std::fmin(std::fmax(length, 1), longest));
}

bool Book::hasDrawnPages() const {
    return pageSource && document && converter->failedPages().size() < pageSource->pages().size();
}
