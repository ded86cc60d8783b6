#pragma once

#include "base/Message.h"
#include "pages/FlashPageSource.h"

#include <vector>

// The files of one page of a web book, in a work folder; null for those that don't exist.
struct WebPage {
    int number = 0; // the page's one-based number in the PDF, used in file names
    QString picture;
    QString thumbnail;
    QString large;   // a larger picture, or an SVG file as zlib packs it
    QString text;    // as packed by PDFSerialization
    Message failure; // why the page lacks some of these
};

// The pages of a source for a web book, in book order, with the files that were made of them. Pages
// that are not of a PDF have their page files only.
std::vector<WebPage> webPagesOf(const FlashPageSource& source);
