#pragma once

#include "webbook/reading/ReadingLine.h"

#include <map>

// What most of a book's text looks like.
struct TextMeasure {
    double size = 0;           // of letters, in points
    bool isMonospaced = false; // so that such letters mean nothing
    // From baseline to baseline, by the letters' size in half points.
    std::map<int, double> pitches;

    static TextMeasure of(const std::vector<ReadingPage>& pages);
    double pitchOf(double lettersSize) const;
    // Whether a line is set like a program.
    bool isCode(const ReadingLine& line) const { return line.isMonospaced() && !isMonospaced; }
    bool isLarge(double lettersSize) const { return lettersSize > 1.12 * size; }
    bool isSmall(double lettersSize) const { return lettersSize < 0.94 * size; }
};

// Lines that belong together. Those of a figure are its caption; there may be none.
struct ReadingParagraph {
    ReadingBlock::Kind kind = ReadingBlock::Kind::paragraph;
    int level = 0; // of a heading
    std::vector<ReadingLine> lines;
    bool isTagged = false;     // its kind is what the document says
    int element = 0;           // of a tagged one, see PDFTag
    double right = 0;          // how far its lines may go
    bool isIndented = false;   // its first line is
    bool startsRegion = false; // and the next one ends it
    bool endsRegion = false;
    ReadingFigure figure; // if it is one
};

namespace Paragraphs {

// Divides a region's lines into paragraphs.
std::vector<ReadingParagraph> of(const ReadingRegion& region, const TextMeasure& measure);

// Whether a line is an entry of contents or an index: dots that lead to the numbers of pages.
bool isEntry(const QString& text);

// Whether the first word of the line would still have fitted into the one before, which so is the
// last of its paragraph.
bool wouldFit(const ReadingLine& before, double right, const ReadingLine& line);

} // namespace Paragraphs
