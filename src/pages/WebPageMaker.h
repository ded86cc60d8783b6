#pragma once

#include "pages/PageImage.h"
#include "pages/WebPageFiles.h"

// Makes the files of a page that a web book has beyond the page file, which must be there already:
// it says how many bytes the page may take. Used by the page workers. Keeps its buffer between
// pages.
class WebPageMaker {
public:
    explicit WebPageMaker(const PDFDocument& document) : iDocument(document) {}

    // Writes the files of the page with that one-based number. Each appears whole or not at all. A
    // page that holds no text has an empty list of it. Throws PlatformException.
    PageTiming make(int page, const WebPageFiles& files, const DrawControl& control = {});

private:
    QByteArray normalPicture(qint64 pageFileSize);
    QByteArray thumbnail() const;
    // largest is in bytes.
    void makeLarge(const PDFPage& page, const WebPageFiles& files, qint64 largest,
                   const DrawControl& control, PageTiming& timing);
    QByteArray largePicture(const PDFPage& page, qint64 largest, const DrawControl& control);

    const PDFDocument& iDocument;
    PageBitmap iBitmap;
};
