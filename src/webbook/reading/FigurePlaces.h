#pragma once

#include "webbook/reading/Paragraphs.h"

namespace FigurePlaces {

// Puts the figures of a page among the paragraphs of its regions, and takes their captions from
// these.
void insert(const std::vector<ReadingFigure>& figures,
            std::vector<std::vector<ReadingParagraph>>& regions);

} // namespace FigurePlaces
