#pragma once

#include "base/PlatformException.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>

// One annotation of a page.
struct PDFAnnotation {
    QString type;  // "Link", "Text" ...
    QRectF bounds; // points in page space: x() and y() are the lower left corner
    QString url;   // null when the annotation has no URI action
    std::optional<int> destinationPage; // zero-based; none when it leads to no page
    // Where on that page, from its left edge (0) to its right one (1) as displayed; -1 when
    // unknown.
    double destinationAcross = -1;
};

// How a document asks to be shown.
struct PDFViewing {
    bool rightToLeft = false;
    bool allowsText = true;      // whether its permissions allow to take text out of it
    QString pageMode;            // what is open beside the page: "UseOutlines", "UseThumbs" ...
    std::optional<int> openPage; // zero-based; none when it is all the same
};

// How a page lies on its sheet. Boxes are in points, in PDF user space (origin at the lower left,
// before rotation).
struct PDFPage {
    QRectF mediaBox;
    QRectF cropBox;       // the visible part of the page: clipped to the media box
    int rotation = 0;     // degrees clockwise, 0 to 359; not necessarily a multiple of 90
    QSizeF display;       // points as drawn: rotated, and scaled by the page's user unit
    QString displayError; // why there is no display size; null when there is

    // Throws PlatformException (pageUnreadable) when there is none.
    QSizeF displaySize() const {
        if (!displayError.isNull())
            throw PlatformException(ErrorKind::pageUnreadable, displayError);
        return display;
    }
};
