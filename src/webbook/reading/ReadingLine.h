#pragma once

#include "webbook/reading/ReadingBlock.h"

#include <algorithm>
#include <optional>
#include <vector>

// One line of text as it is read: whatever its direction on the page, it runs along from smaller to
// larger numbers, and the next line has a larger baseline. In points.
struct ReadingLine {
    double left = 0;
    double right = 0;
    double baseline = 0;
    double size = 0; // of most of its letters
    int style = 0;   // what is true of all of its letters
    // Of the first and the last word.
    int firstStyle = 0;
    int lastStyle = 0;
    double firstLength = 0;
    double lastSize = 0; // of the last word's letters, if it has more than one
    // Where its second word starts; right for a single word.
    double second = 0;
    bool startsRaised = false; // the first letters are smaller, as a footnote's number is
    bool rightToLeft = false;
    int cells = 1; // parts with wide gaps between them, which are tabs in the text
    int cell = 0;  // which one of a tagged row it is in
    QRectF box;    // as displayed
    QString text;
    std::vector<ReadingRun> runs; // its text in parts
    // The lines of the page that it was made of: their numbers as they were found there, later
    // those in reading order.
    std::vector<std::size_t> sources;

    bool isBold() const { return (style & boldText) != 0; }
    bool isMonospaced() const { return (style & monospacedText) != 0; }
    int position() const { return runs.empty() ? 0 : runs.front().position; }
};

// What the document says that lines are.
struct ReadingTag {
    ReadingBlock::Kind kind = ReadingBlock::Kind::paragraph;
    int level = 0;   // of a heading
    int element = 0; // the same number on another page is the same block
};

// Lines below each other, such as those of a column, from top to bottom. Those with a tag are one
// block.
struct ReadingRegion {
    std::vector<ReadingLine> lines;
    std::optional<ReadingTag> tag;

    double left() const {
        return std::min_element(lines.begin(), lines.end(),
                                [](const auto& a, const auto& b) { return a.left < b.left; })
            ->left;
    }
    double right() const {
        return std::max_element(lines.begin(), lines.end(),
                                [](const auto& a, const auto& b) { return a.right < b.right; })
            ->right;
    }
};

// A figure on a page. In points, as displayed.
struct ReadingFigure {
    QRectF box;
    QSizeF page; // its size
    bool hasImages = false;
    // Of the lines within it, as BookReading::addPage() has returned them.
    ReadingBlock::Lines lines;
    QString words;
    QString alternative; // empty for none
};

// The lines of a page, without those in figures. No region is empty.
struct ReadingPage {
    int position = 0; // in the book, one-based
    std::vector<ReadingRegion> regions;
    std::vector<ReadingFigure> figures;
};
