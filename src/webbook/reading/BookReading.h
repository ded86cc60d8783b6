#pragma once

#include "webbook/reading/Figures.h"
#include "webbook/reading/Headings.h"
#include "webbook/reading/LineJoin.h"
#include "webbook/reading/PageLayout.h"

// Works out what a book's text consists of, from the places of its words: columns, paragraphs that
// go on over their ends, headings, lists, footnotes, and where figures are among them; or from its
// tags. Takes up the pages one by one and keeps their lines, some hundred bytes each, since heads,
// hyphens and sizes are known only in the end.
class BookReading {
public:
    // Adds the next page of the book, which is at a one-based position. Returns its lines in
    // reading order, then those in figures, and those that lie nowhere last. Where tags are used, a
    // line ends with its block.
    std::vector<PDFTextLine> addPage(int position, const PDFPageText& text,
                                     const std::vector<PageLayout::Link>& links,
                                     const Figures::OfPage& figures = {});

    // The text without running heads and page numbers. Once only.
    std::vector<ReadingBlock> finish(const std::vector<Headings::Entry>& outline);

private:
    std::vector<ReadingPage> iPages;
};
