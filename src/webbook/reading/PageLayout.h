#pragma once

#include "webbook/reading/ReadingLine.h"

#include <QRectF>
#include <QString>
#include <vector>

// Puts the lines of one page into reading order.
namespace PageLayout {

// A link as it lies on the page, in points from the top left as displayed.
struct Link {
    QRectF box;
    QString url;    // null for a link into the book
    int target = 0; // the page's position in the book
};

// Columns are read one after the other, from right to left in a text of such a script. Text of
// other directions than most of the page's comes last.
ReadingPage of(int position, const std::vector<PDFTextLine>& lines, const std::vector<Link>& links);

// The lines as one column, in the order that they come in, whatever their places.
std::vector<ReadingLine> inOrder(int position, const std::vector<PDFTextLine>& lines,
                                 const std::vector<Link>& links);

} // namespace PageLayout
