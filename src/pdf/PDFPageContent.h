#pragma once

#include "pdf/PDFMark.h"
#include "pdf/PDFText.h"

#include <vector>

// What the structure of a page's text is found from.
struct PDFPageContent {
    PDFPageText text;
    std::vector<PDFMark> marks;
};
