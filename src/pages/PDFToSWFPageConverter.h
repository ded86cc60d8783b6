#pragma once

#include "base/Message.h"
#include "drawing/PageWorkers.h"
#include "pages/PDFToPageConverter.h"

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

// Makes the page files of a PDF in the work folder: "N.jpg" at twice the page's size in points,
// named by the one-based page number, or "N.png" for a page of few colours that is for a web book
// only. A file "N.swf" that is in the folder before anything is drawn is used instead.
class PDFToSWFPageConverter : public PDFToPageConverter {
public:
    struct FailedPage {
        int page;       // one-based
        Message reason; // for users
    };

    using PDFToPageConverter::PDFToPageConverter;
    ~PDFToSWFPageConverter() override;

    // Path of the external page converter in the resources, or a null text.
    static QString getPDF2swfLibPath();

    // Which files pages get; page files by default.
    void setFilesOf(FilesOfPages filesOf) { iFilesOf = std::move(filesOf); }

    // For pages whose files were made before, for the next drawAhead().
    void setTakeEarlierPage(TakeEarlierPage take) { iTakeEarlierPage = std::move(take); }

    // How many page workers draw; usualWorkerCount() by default.
    void setJobs(int jobs) { iJobs = jobs; }

    // Workers that are already running, for the next drawAhead().
    void setSpareWorkers(std::shared_ptr<SpareWorkers> spares) { iSpares = std::move(spares); }

    // Starts drawing these pages in page workers, ahead of the calls of generatePage(), which must
    // come in the same order. Setting stop also stops the page that is being drawn.
    void drawAhead(const std::vector<int>& pages, const std::atomic<bool>& stop);

    // Stops the page workers, and removes files that they wrote which are not what they should be.
    // Files of earlier pages are in the work folder only then.
    void endDrawingAhead();

    // Returns the path whether or not the page could be drawn. Throws PlatformException when the
    // document has no such page.
    QString generatePage(int page) override;

    // Draws a page into the work folder; toPath is ignored.
    void pdfPageToImage(int page, const QString& toPath);

    const std::vector<FailedPage>& failedPages() const { return iFailedPages; }
    // Pages with a picture that lack files of a web book, by their one-based numbers.
    const std::map<int, Message>& degradedPages() const { return iDegradedPages; }

    // What the document lacks of pages that were drawn, by their one-based numbers.
    const std::map<int, Message>& damagedPages() const { return iDamagedPages; }

    // Makes what a kind of book needs of these pages, which were made for another kind. Returns
    // early when stop is set. progress gets the number of pages done. Throws PlatformException when
    // the work folder can't be written.
    void makeFiles(PageFiles kind, const std::vector<int>& pages, const std::atomic<bool>& stop,
                   const std::function<void(int done)>& progress);

    // Total seconds for all pages so far.
    const PageTiming& timing() const { return iTiming; }
    std::size_t workerCount() const { return iWorkerCount; }

private:
    QByteArray password() const;
    QString workFile(int page, const char* extension) const;
    // The picture of a page that is there, else the page file.
    QString pictureOf(int page) const;
    void takeEarlierPages(const std::vector<int>& pages);
    void moveEarlierFiles();
    void detachFiles() const;
    bool isThere(const QString& file) const;
    PageResult drawInProcess(int page);
    void makePage(int page);
    bool hasMovie(int page) const;
    void checkFilesOf(int page);

    int iJobs = usualWorkerCount();
    std::shared_ptr<SpareWorkers> iSpares;
    std::unique_ptr<PageWorkers> iWorkers;
    std::unique_ptr<DrawablePDF> iOwnDocument; // opened to draw
    std::unique_ptr<PageMaker> iPDFRep;        // pages in this process
    FilesOfPages iFilesOf = classicFiles;
    TakeEarlierPage iTakeEarlierPage;
    const std::atomic<bool>* iStop = nullptr;
    std::optional<std::set<int>> iMovies; // pages with a file "N.swf" when drawing began
    QString iEarlierFolder;               // for files that workers must not write
    std::set<int> iDrawn;                 // pages whose files workers may have written
    bool iIsUnchecked = false;            // workers may have written some since
    std::vector<FailedPage> iFailedPages;
    std::map<int, Message> iDegradedPages;
    std::map<int, Message> iDamagedPages;
    PageTiming iTiming;
    std::size_t iWorkerCount = 0;
};
