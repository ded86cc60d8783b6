#pragma once

#include <QRectF>
#include <QString>
#include <vector>

// A word of a page, or a single character of a script without blanks.
struct PDFTextWord {
    QString text; // with one trailing blank when a blank follows in the same line
    // Along the line, in points: from the left edge of its box, or from its top when it runs
    // upwards or downwards.
    double start = 0;
    double length = 0;
};

// One line of a page's text.
struct PDFTextLine {
    QRectF box;   // points, from the top left of the page as it is seen
    int turn = 0; // degrees clockwise in which the text runs: 0, 90, 180, 270
    bool rightToLeft = false;
    std::vector<PDFTextWord> words; // in the order of reading
};

// What a line is made from: characters as they are found on the page.
struct PDFTextCharacter {
    char32_t code = 0;
    double from = 0; // along the line, in points from anywhere
    double to = 0;
};

namespace PDFText {

// The words of one line. The characters stand in any order when some of them are of right-to-left
// scripts, since documents store these from right to left and from left to right; otherwise in the
// order of reading. start counts from lineStart. Sets rightToLeft and words.
void makeWords(std::vector<PDFTextCharacter> characters, double lineStart, PDFTextLine& line);

} // namespace PDFText
