#pragma once

#include "pdf/PDFPageContent.h"

#include <QSizeF>

// Finds the figures of a page.
namespace Figures {

struct Figure {
    QRectF box; // in points from the top left of the page as displayed
    bool hasImages = false;
    QString alternative; // what the document says that stands for it; empty for nothing
};

// The figures of a page, and its size as displayed, in points.
struct OfPage {
    QSizeF size;
    std::vector<Figure> figures;
};

// Images of some size, and drawings: marks near each other, with the words that label them. Rules,
// tables, and what text stands on are none, nor is the image of a scanned page that has text.
OfPage of(const PDFPageContent& content, const QSizeF& size);

} // namespace Figures
