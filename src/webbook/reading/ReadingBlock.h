#pragma once

#include "pdf/PDFText.h"

#include <QRectF>
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

// A part of a book's text that readers see as one: a heading, a paragraph, a row of a table.
struct ReadingBlock {
    enum class Kind { paragraph, heading, listItem, footnote, code, tableRow };
    // Some of a page's lines, by their places in what BookReading::addPage() has returned.
    struct Lines {
        int position = 0; // of the page
        std::size_t first = 0;
        std::size_t count = 0;
    };

    Kind kind = Kind::paragraph;
    int level = 0; // of a heading, 1 to 6
    QRectF box;    // of what is on its first page, in points from the top left as displayed
    bool rightToLeft = false;
    // In reading order. Lines of code end with line breaks, cells of a row with tabs, except for
    // the last ones.
    std::vector<ReadingRun> runs;
    std::vector<Lines> lines; // that it consists of

    // That of its first page; 0 without runs.
    int position() const { return runs.empty() ? 0 : runs.front().position; }
    QString text() const {
        QString text;
        for (const ReadingRun& run : runs)
            text += run.text;
        return text;
    }
};
