#pragma once

#include "pdf/PDFMark.h"
#include "pdf/PDFText.h"
#include "pdf/PageCut.h"
#include "pdf/PageDamage.h"
#include "picture/PageBitmap.h"

#include <QByteArray>
#include <atomic>
#include <chrono>
#include <memory>
#include <vector>

class DrawablePDF;

// What cancels the making of a page's pictures.
struct DrawControl {
    const std::atomic<bool>* stop = nullptr; // cancels as soon as this becomes true
    std::chrono::milliseconds timeLimit{60'000};
};

// What a page is made of.
struct PageDetail {
    bool hasOutlines = false; // text or lines, which are sharp at any scale
    bool hasShades = false;   // images, gradients or soft masks
    double imageScale = 0;    // of the finest image, in pixels per point; 0 without images
};

// A page, or a half of one, that was interpreted once, into a display list from which any number of
// pictures can be made. The time limit is for all of them together. The document must outlive it.
// Every function throws PlatformException: pageUnreadable, pageTimeout or pageStopped.
class DrawablePage {
public:
    enum class Content { pictures, picturesAndText };

    // Throws also pageMissing.
    DrawablePage(const DrawablePDF& document, PageCut cut, const DrawControl& control = {},
                 Content content = Content::pictures);
    ~DrawablePage();
    DrawablePage(const DrawablePage&) = delete;
    DrawablePage& operator=(const DrawablePage&) = delete;

    // As a viewer shows it, in points.
    double width() const;

    // Draws the page as a viewer shows it, rotated and with its annotations, on white. scale is in
    // pixels per point; a page that exceeds the limits is drawn at a smaller scale. The bitmap has
    // one component when the page is gray.
    void draw(double scale, PageBitmap& bitmap) const;

    // The words on the page without its annotations, and what they are if the document is tagged.
    // Empty for a page that was recorded without its text.
    PDFPageText text() const;

    // Where what is no text lies: images, lines, areas, with the page's annotations.
    std::vector<PDFMark> marks() const;

    PageDetail detail() const;

    // What was not drawn so far because the document is damaged. For the last page that was made of
    // a document.
    PageDamage damage() const;

    // Of a page that shows a scanned image and nothing else, at the image's own resolution: its
    // JPEG file as the page shows it, empty for other pages and where that would take decoding.
    QByteArray scannedJPEG() const;
    // Draws an image of two colours, up to the limit of a page; returns false for other pages.
    bool drawScannedInk(PageBitmap& bitmap) const;

    struct Recording; // for the sources of this folder
    Recording& recording() const { return *iRecording; }

private:
    struct Scan;
    std::unique_ptr<Recording> iRecording;
};
