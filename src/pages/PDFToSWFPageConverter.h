#pragma once

#include "pages/PDFToPageConverter.h"
#include "pages/PageWorkers.h"
#include "platform/Message.h"

#include <atomic>
#include <memory>
#include <vector>

// Makes the page files of a PDF in the work folder: "N.jpg" at twice the page's size in points,
// named by the one-based page number. A file "N.swf" that lies there already is used instead.
class PDFToSWFPageConverter : public PDFToPageConverter {
public:
    struct FailedPage {
        int page;       // one-based
        Message reason; // in words
    };

    using PDFToPageConverter::PDFToPageConverter;
    ~PDFToSWFPageConverter() override;

    // Path of the external page converter among the resources, or a null text.
    static QString getPDF2swfLibPath();

    // Workers that are started already, for the next drawAhead().
    void setSpareWorkers(std::shared_ptr<SpareWorkers> spares) { iSpares = std::move(spares); }

    // Lets page workers draw these pages ahead of the calls of generatePage(), which come in the
    // same order. A stop flag that turns true ends a page that is being drawn.
    void drawAhead(const std::vector<int>& pages, const std::atomic<bool>& stop);

    // Ends the page workers.
    void endDrawingAhead();

    // The path comes back whether or not the page could be drawn. Throws PlatformException when the
    // document has no such page.
    QString generatePage(int page) override;

    // Draws a page into the work folder; the path is always "N.jpg" there, whatever toPath says.
    void pdfPageToImage(int page, const QString& toPath);

    const std::vector<FailedPage>& failedPages() const { return iFailedPages; }

    // Seconds spent on all pages so far.
    const PageTiming& timing() const { return iTiming; }
    std::size_t workerCount() const { return iWorkerCount; }

private:
    QString workFile(int page, const char* extension) const;
    PageResult drawInProcess(int page);

    std::shared_ptr<SpareWorkers> iSpares;
    std::unique_ptr<PageWorkers> iWorkers;
    std::shared_ptr<PDFDocument> iOwnDocument; // for pages
    std::unique_ptr<PageImageMaker> iPDFRep;   // drawn in this process
    const std::atomic<bool>* iStop = nullptr;
    std::vector<FailedPage> iFailedPages;
    PageTiming iTiming;
    std::size_t iWorkerCount = 0;
};
