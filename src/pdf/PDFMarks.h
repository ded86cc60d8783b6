#pragma once

#include "pdf/PDFMark.h"

#include <utility>
#include <vector>

// Collects the marks of a page, at most PDFLimits::maxPageMarks. Where there are more, small ones
// near each other become one.
class PDFMarks {
public:
    // Coordinates that are no numbers are left out.
    void add(const PDFMark& mark);
    std::vector<PDFMark> take() { return std::move(iMarks); }

private:
    void thin();

    std::vector<PDFMark> iMarks;
    double iCell = 8; // size of the squares in which small marks become one, in points
};
