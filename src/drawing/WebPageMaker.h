#pragma once

#include "drawing/PageTiming.h"
#include "drawing/WebPageFiles.h"
#include "pdf/DrawablePage.h"

#include <span>

// Writes a file of a page atomically. Throws PlatformException of the kind pageWrite.
void writePageFile(const QString& path, std::span<const unsigned char> data);

// Makes the files that a web book has of one page beyond the page file, whose size limits theirs.
class WebPageMaker {
public:
    // bitmap is the page as it was drawn for the page file. It is overwritten.
    WebPageMaker(const DrawablePage& page, PageBitmap& bitmap) : iPage(page), iBitmap(bitmap) {}

    // Writes the files, each atomically. A page without text has an empty list. Throws
    // PlatformException; what was made before is written all the same.
    PageTiming make(const WebPageFiles& files, qint64 pageFileSize);

private:
    QByteArray normalPicture(qint64 pageFileSize) const;
    QByteArray thumbnail() const;
    // largest is in bytes.
    void makeLarge(const WebPageFiles& files, qint64 largest);
    QByteArray largePicture(qint64 largest);

    const DrawablePage& iPage;
    PageBitmap& iBitmap;
    PageTiming iTiming;
};
