#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
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

private:
    friend class PDFDocument;
    friend class DrawablePage;
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
