#pragma once

#include "webbook/reading/PageLayout.h"

// Puts the text of a page of a tagged document into the order and the blocks of its tags.
namespace TaggedLayout {

// Whether the tags cover the text, and look as if they were meant for it.
bool isPlausible(const PDFPageText& text);

// The lines, each cut where another block begins.
std::vector<PDFTextLine> divided(const PDFPageText& text);

// What no tag covers follows what stands before it in the file; artifacts lie nowhere.
ReadingPage of(int position, const std::vector<PDFTextLine>& divided,
               const std::vector<PDFTag>& tags, const std::vector<PageLayout::Link>& links);

} // namespace TaggedLayout
