#pragma once

#include "drawing/PageTiming.h"
#include "drawing/WebPageFiles.h"
#include "pdf/DrawablePage.h"
#include "pdf/VectorEncoder.h"
#include "picture/ColourReducer.h"
#include "picture/JPEGEncoder.h"
#include "picture/PNGEncoder.h"

#include <span>

// Writes a file of a page atomically. Throws PlatformException of the kind pageWrite.
void writePageFile(const QString& path, std::span<const unsigned char> data);

// Makes the files that a web book has of the pages of one document.
class WebPageMaker {
public:
    // Page files that are needed are encoded with this factor.
    WebPageMaker(JPEGEncoder& encoder, double factor) : iEncoder(encoder), iFactor(factor) {}

    // Both functions write each file atomically, add to the timing and throw PlatformException.
    // They are called in this order for a page; bitmap is the page as it is drawn for the page
    // file.

    // Makes the page's picture and returns its size in bytes: few colours become a PNG file, others
    // the page file, unless there is one.
    qint64 makePicture(const DrawablePage& page, const PageBitmap& bitmap,
                       const WebPageFiles& files, PageTiming& timing);
    // Makes what there is beside the picture and overwrites the bitmap. A page without text has an
    // empty list. What was made before an error is written all the same.
    void makeOthers(const DrawablePage& page, PageBitmap& bitmap, qint64 pictureSize,
                    const WebPageFiles& files, PageTiming& timing);
    // Makes the page's text only, for a page whose other files are there.
    static void makeText(const DrawablePage& page, const WebPageFiles& files, PageTiming& timing);

private:
    qint64 makeThumbnail(const PageBitmap& bitmap, const QString& path, PageTiming& timing);
    bool makeScan(const DrawablePage& page, PageBitmap& bitmap, const WebPageFiles& files,
                  qint64 largest, PageTiming& timing);
    void makeLarge(const DrawablePage& page, PageBitmap& bitmap, const WebPageFiles& files,
                   qint64 taken, PageTiming& timing);

    JPEGEncoder& iEncoder;
    double iFactor;
    ColourReducer iReducer;
    PNGEncoder iPNGEncoder;
    VectorEncoder iVectorEncoder;
    PageBitmap iThumbnail;
    PageDetail iDetail; // of the page
};
