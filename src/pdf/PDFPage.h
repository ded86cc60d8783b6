#pragma once

#include "pdf/PDFText.h"
#include "pdf/PageBitmap.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class PDFDocument;
struct pdf_obj;

// One annotation of a page.
struct PDFAnnotation {
    QString type;  // "Link", "Text" ...
    QRectF bounds; // points in page space: x() and y() are the lower left corner
    QString url;   // null when the annotation has no URI action
    std::optional<int> destinationPage; // zero-based; none when it leads to no page
};

// What cancels a drawing.
struct DrawControl {
    const std::atomic<bool>* stop = nullptr; // cancels as soon as this becomes true
    std::chrono::milliseconds timeLimit{60'000};
};

// The boxes of a page, as PDFPage gives them.
struct PDFPageBoxes {
    QRectF media;
    QRectF crop;
    int rotation = 0;
    QSizeF display;
    QString displayError; // why there is no display size; null when there is
};

// One page of an open document. Boxes are in points, in PDF user space (origin at the lower left,
// before rotation).
class PDFPage {
public:
    QRectF mediaBox() const;

    // The visible part of the page: the crop box clipped to the media box.
    QRectF cropBox() const;

    // Rotation in degrees clockwise as stored in the file, normalised to 0 to 359. Not necessarily
    // a multiple of 90.
    int rotation() const;

    // Size in points as drawn: rotated, and scaled by the page's user unit. Throws
    // PlatformException (pageUnreadable).
    QSizeF displaySize() const;

    PDFPageBoxes boxes() const;

    std::vector<PDFAnnotation> annotations() const;

    // Draws the page as a viewer shows it, rotated and with its annotations, on white. scale is in
    // pixels per point; a page that exceeds the limits is drawn at a smaller scale. The bitmap has
    // one component when the page is gray. Throws PlatformException:
    // pageUnreadable, pageTimeout or pageStopped. Not for documents that another process reads.
    void draw(double scale, PageBitmap& bitmap, const DrawControl& control = {}) const;

    // The words on the page, line by line in the order of the file. Throws PlatformException
    // (pageUnreadable). Not for documents that another process reads.
    std::vector<PDFTextLine> text() const;

    // The page as an SVG file, in points, or empty for a page with more than text and plain fills,
    // which only a bitmap shows correctly. Throws PlatformException (pageUnreadable). Not for
    // documents that another process reads.
    QByteArray vectorPicture() const;

private:
    friend class PDFDocument;
    PDFPage(const PDFDocument& document, int index, pdf_obj* object)
        : iDocument(&document), iIndex(index), iObject(object) {}
    PDFPage(const PDFDocument& document, int index, PDFPageBoxes boxes)
        : iDocument(&document), iIndex(index), iBoxes(std::move(boxes)) {}

    QRectF box(pdf_obj* key) const;

    const PDFDocument* iDocument;
    int iIndex;
    pdf_obj* iObject = nullptr;         // owned by the document
    std::optional<PDFPageBoxes> iBoxes; // as read by another process
};
