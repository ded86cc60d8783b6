#pragma once

#include "drawing/PageImage.h"
#include "drawing/WebPageFiles.h"

// Makes the files that a web book has of a page beyond the page file, which must exist: its size
// limits theirs. Used by the page workers. Keeps its buffer from page to page.
class WebPageMaker {
public:
    explicit WebPageMaker(const DrawablePDF& document) : iDocument(document) {}

    // Writes the files of the page with that one-based number, each atomically. A page without text
    // has an empty list. Throws PlatformException.
    PageTiming make(int page, const WebPageFiles& files, const DrawControl& control = {});

private:
    QByteArray normalPicture(qint64 pageFileSize);
    QByteArray thumbnail() const;
    // largest is in bytes.
    void makeLarge(const DrawablePage& page, const WebPageFiles& files, qint64 largest,
                   PageTiming& timing);
    QByteArray largePicture(const DrawablePage& page, qint64 largest);

    const DrawablePDF& iDocument;
    PageBitmap iBitmap;
};
