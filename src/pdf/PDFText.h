#pragma once

#include <QRectF>
#include <QString>
#include <vector>

// How letters look; values are combined with |.
enum PDFTextStyle { plainText = 0, boldText = 1, italicText = 2, monospacedText = 4 };

// A word of a page, or a single character of a script without blanks.
struct PDFTextWord {
    QString text; // with a trailing space when one follows in the same line
    // Position along the line in points: from the left edge of its box, or from the top for
    // vertical text.
    double start = 0;
    double length = 0;
    // Of its first letter: the size of the font in points, and PDFTextStyle.
    double size = 0;
    int style = plainText;
};

// One line of a page's text.
struct PDFTextLine {
    QRectF box;   // in points, from the top left of the page as displayed
    int turn = 0; // direction of the text in degrees clockwise: 0, 90, 180, 270
    bool rightToLeft = false;
    std::vector<PDFTextWord> words; // in reading order
    // Where the letters stand: a distance in points from the top of the page as displayed, or from
    // its left edge for vertical text.
    double baseline = 0;
};

// Input of makeWords(): a character found on the page.
struct PDFTextCharacter {
    char32_t code = 0;
    double from = 0; // along the line, in points from an arbitrary origin
    double to = 0;
    double size = 0; // as in PDFTextWord
    int style = plainText;
};

namespace PDFText {

// Splits a line into words; sets rightToLeft and words. If any character is of a right-to-left
// script the characters may come in any order, since documents store them both from right to left
// and from left to right; otherwise they must be in reading order. start counts from lineStart.
void makeWords(const std::vector<PDFTextCharacter>& characters, double lineStart,
               PDFTextLine& line);

} // namespace PDFText
