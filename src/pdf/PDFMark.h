#pragma once

#include <QRectF>

// Something on a page other than words. Its box is in points, from the top left as displayed.
struct PDFMark {
    enum class Kind {
        image,
        rule,   // a line along an axis, or anything as thin
        sign,   // a glyph that stands for no letter, as those of music do
        frame,  // an outline of straight lines along the axes
        fill,   // a plain area with such edges
        drawing // anything else: curves, diagonals
    };

    QRectF box;
    Kind kind = Kind::drawing;
};
