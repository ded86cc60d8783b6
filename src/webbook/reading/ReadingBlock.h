#pragma once

#include "pdf/PDFText.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

// Letters of one look and one link, on one page.
struct ReadingRun {
    QString text;
    int position = 0; // of the page in the book, one-based
    int style = plainText;
    QString url;    // of a link; null for none
    int target = 0; // of a link into the book: the page's position; 0 for none
};

// A part of a book that readers see as one: a heading, a paragraph, a row of a table, a figure.
struct ReadingBlock {
    enum class Kind { paragraph, heading, listItem, footnote, code, tableRow, figure };
    // Some of a page's lines, by their places in what BookReading::addPage() has returned.
    struct Lines {
        int position = 0; // of the page
        std::size_t first = 0;
        std::size_t count = 0;
    };

    Kind kind = Kind::paragraph;
    int level = 0;    // of a heading, 1 to 6
    int position = 0; // of the page where it begins
    QRectF box;       // of what is on that page, in points from the top left as displayed
    bool rightToLeft = false;
    // In reading order. Lines of code end with line breaks, cells of a row with tabs, except for
    // the last ones. Of a figure, whose box is the figure alone, its caption; empty for none.
    std::vector<ReadingRun> runs;
    std::vector<Lines> lines; // that it consists of, or its caption does

    // Of a figure: the size of its page as displayed, in points, the lines within it, their words,
    // and whether it has images.
    QSizeF pageSize;
    Lines within;
    QString words;
    bool hasImages = false;
    QString alternative; // for a figure, from the document; empty for none

    QString text() const {
        QString text;
        for (const ReadingRun& run : runs)
            text += run.text;
        return text;
    }
};
