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
    int tag = -1; // that of its first letter, by its place in PDFPageText::tags; -1 for none
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
    int tag = -1;
};

// What a tagged document says that a piece of text is.
struct PDFTag {
    // unknown are words in figures, and what is in no block.
    enum class Kind { paragraph, heading, listItem, note, code, tableRow, unknown, artifact };
    static constexpr int deepestLevel = 6;
    static constexpr int lastCell = 255; // what is further right is in that one

    Kind kind = Kind::paragraph;
    // Which paragraph, item, row or figure of the document; may begin on an earlier page. 0 for
    // none.
    int element = 0;
    int level = 0; // of a heading, 1 to 6
    int cell = 0;  // which one of its row, from 0 on
};

// What stands for a figure where it is not seen.
struct PDFAlternative {
    QRectF box; // of the figure, in points from the top left of the page as displayed
    QString text;
};

// The text of a page.
struct PDFPageText {
    std::vector<PDFTextLine> lines; // in the order of the file
    // In the order in which they are read; empty for a page without tags. Not to be trusted to fit
    // the text: they may be wrong, or few.
    std::vector<PDFTag> tags;
    std::vector<PDFAlternative> alternatives;
};

namespace PDFText {

// Splits a line into words; sets rightToLeft and words. If any character is of a right-to-left
// script the characters may come in any order, since documents store them both from right to left
// and from left to right; otherwise they must be in reading order. start counts from lineStart.
void makeWords(const std::vector<PDFTextCharacter>& characters, double lineStart,
               PDFTextLine& line);

} // namespace PDFText
