#pragma once

#include "base/Message.h"
#include "base/Stopwatch.h"
#include "drawing/PageOrder.h"
#include "drawing/PageTiming.h"
#include "drawing/WebPageFiles.h"
#include "drawing/WebPageMaker.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "picture/JPEGEncoder.h"

#include <QString>

// What was made of a page.
struct MadePage {
    PageTiming timing;
    Message degraded; // why not all of the web book's files were made; null when they were
    PageDamage damage;
};

// Makes the files of pages: interprets a page once, draws and encodes it, and writes the files.
// Used by the page workers and, where none can be started, by the program itself. Keeps its buffers
// from page to page.
class PageMaker {
public:
    // quality is 0 to 100.
    PageMaker(const DrawablePDF& document, QString folder, int quality);

    // Makes the page file, at twice the page's size in points, or what a web book has of the page.
    // Each file is written atomically. Throws PlatformException when there is no picture of the
    // page, and pageWrite when the folder can't be written.
    MadePage make(const PageOrder& order, const DrawControl& control = {});

private:
    void makeFiles(const DrawablePage& drawn, const PageOrder& order, Stopwatch& watch,
                   MadePage& made);
    void makePageFile(const QString& path, PageTiming& timing);

    const DrawablePDF& iDocument;
    QString iFolder;
    double iFactor; // JPEG compression factor, 0 (smallest) to 1 (best)
    PageBitmap iBitmap;
    JPEGEncoder iEncoder;
    WebPageMaker iWebPageMaker;
};
