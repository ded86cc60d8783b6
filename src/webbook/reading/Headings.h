#pragma once

#include "webbook/reading/Paragraphs.h"

class FlashOutline;

// Finds the headings among a book's paragraphs.
namespace Headings {

// An entry of the outline.
struct Entry {
    QString title;
    int position = 0; // of its page in the book, one-based
    int level = 1;
};

// Marks as headings what the outline has, and what is set like that, or larger than the text or
// bold. Their levels come from the outline, or else from their numbers, or else from their sizes.
// Where tags say that there are any, a tagged paragraph is one only if its letters are much larger.
void mark(std::vector<ReadingParagraph>& paragraphs, const TextMeasure& measure,
          const std::vector<Entry>& outline);

} // namespace Headings
