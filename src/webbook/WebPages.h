#pragma once

#include "base/Message.h"
#include "pages/FlashPageSource.h"

#include <vector>

// The files of one page of a web book, in a work folder; null for those that don't exist.
struct WebPage {
    QString pageFile;  // the page file of a classic book
    int number = 0;    // the page's one-based number in the PDF, used in file names
    QString picture;   // the page file, or a smaller equivalent
    QString thumbnail; // WebP
    QString large;     // SVG or WebP
    QString text;      // as packed by PDFSerialization
    Message failure;   // why the page lacks some of these
};

// The pages of a source for a web book, in book order, with the files that were made of them. Pages
// that are not of a PDF have their page files only.
std::vector<WebPage> webPagesOf(const FlashPageSource& source);
