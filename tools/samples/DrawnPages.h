#pragma once

#include "builder/PDFBuilder.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <functional>
#include <vector>

// Pages drawn with a painter, with real embedded fonts, that are then added to a PDFBuilder.
// Coordinates are points with the origin at the upper left, as a painter has them.
class DrawnPages {
public:
    // The first page is begun; its index is the builder's next one.
    DrawnPages(PDFBuilder& pdf, QSizeF pageSize);

    QPainter& painter() { return iPainter; }
    void nextPage();
    // One page for each drawing, the first on the page that is begun already.
    void drawEach(const std::vector<std::function<void(QPainter&)>>& drawings);
    // A link on the current page; the target as PDFBuilder makes it.
    void addLink(const QRectF& area, const QByteArray& target);
    // Ends drawing and adds the pages.
    void finish();

private:
    PDFBuilder& iPdf;
    QSizeF iSize;
    QBuffer iFile;
    QPdfWriter iWriter;
    QPainter iPainter;
    std::vector<std::vector<QByteArray>> iAnnotations;
};
