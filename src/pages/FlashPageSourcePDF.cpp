#include "pages/FlashPageSourcePDF.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <utility>

FlashPageSourcePDF::FlashPageSourcePDF(const QString& pdfPath, const QString& pageRange, int dpi,
                                       int quality, OpenedPDF opened, std::function<bool()> stopped,
                                       const SpreadChoice& spreads)
    : iPageRange(pageRange), iDPI(dpi), iQuality(quality) {
    setSourceFile(pdfPath);
    try {
        opened.open(sourceFile(), std::move(stopped));
        iPDFDoc = opened.document;
        iPDFDoc->rememberContent();
        splitSpreads(spreads);
    } catch (const PlatformException& failure) {
        iOpenError = failure;
        Log("FlashPageSourcePDF").warn(failure.reason());
    }
    iToPageConverter = std::make_shared<PDFToSWFPageConverter>(pdfPath, iPDFDoc, iQuality);
    iToPageConverter->setJobs(opened.jobs);
    iToPageConverter->setSpareWorkers(std::move(opened.workers));
    iNeedToImportPages = parsePageRange(iPageRange, iPDFDoc ? iPDFDoc->pageCount() : 0);
}

void FlashPageSourcePDF::splitSpreads(const SpreadChoice& choice) {
    if (choice.spreads == Spreads::keep)
        return;
    const bool rightToLeft = choice.rightToLeft ? *choice.rightToLeft : iPDFDoc->isRightToLeft();
    if (const auto split = SplitPDF::of(iPDFDoc, choice.spreads, rightToLeft)) {
        iPageRange = split->range(iPageRange);
        iPDFDoc = split;
    }
}

void FlashPageSourcePDF::postProgress(std::size_t step, const char* type) const {
    NotificationCenter::defaultCenter().post(
        QString::fromUtf16(ImportProgressInfoMSG), nullptr,
        {{QStringLiteral("pageIndex"), int(step)},
         {QStringLiteral("totalPage"), int(iNeedToImportPages.size())},
         {QStringLiteral("type"), QString::fromLatin1(type)}});
}

void FlashPageSourcePDF::startDrawing() {
    if (!std::exchange(iIsDrawing, true))
        iToPageConverter->drawAhead(iNeedToImportPages, stopFlag());
}

void FlashPageSourcePDF::generatePages() {
    startDrawing();
    const auto end = qScopeGuard([this] {
        iToPageConverter->endDrawingAhead();
        iIsDrawing = false;
    });
    for (std::size_t i = 1; i - 1 < iNeedToImportPages.size() && !stop(); ++i) {
        const int number = iNeedToImportPages[i - 1];
        auto page = std::make_shared<FlashPage>();
        page->setPageIndex(number);
        page->setPageFilePath(iToPageConverter->generatePage(number));
        if (iPDFDoc)
            iPDFDoc->checkUnchanged();
        iPages.push_back(std::move(page));
        postProgress(i, "geneatePage");
    }
}

void FlashPageSourcePDF::generateNormalPages() {
    for (std::size_t i = 1; i - 1 < iPages.size() && !stop(); ++i) {
        const auto& page = iPages[i - 1];
        if (!getNormalPageAtIndex(page->pageIndex()))
            iNormalPages.push_back(page->copyPage(100, 100));
        postProgress(i, "geneateNormalPage");
    }
}

std::shared_ptr<FlashPage> FlashPageSourcePDF::getNormalPageAtIndex(int pageIndex) const {
    for (const auto& page : iNormalPages) {
        if (stop())
            return nullptr;
        if (page->pageIndex() == pageIndex)
            return page;
    }
    return nullptr;
}

WebPageFiles FlashPageSourcePDF::filesOf(int page) const {
    return {iToPageConverter->converterWorkFolder(), page};
}

std::optional<WebPageFiles> FlashPageSourcePDF::webFilesOf(int page) const {
    return filesOf(page);
}

bool FlashPageSourcePDF::wasMade(int page) const {
    const auto& failed = iToPageConverter->failedPages();
    return iPDFDoc && std::none_of(failed.begin(), failed.end(),
                                   [page](const auto& one) { return one.page == page; });
}

// A page that could not be drawn won't be now, and one that is not a picture of ours has no such
// files.
std::vector<int> FlashPageSourcePDF::pagesWithout(PageFiles kind) const {
    std::vector<int> numbers;
    const auto& degraded = iToPageConverter->degradedPages();
    for (const auto& page : normalPages()) {
        const WebPageFiles files = filesOf(page->pageIndex());
        const QString path = page->pageFilePath();
        const bool isMissing = kind == PageFiles::web ? files.isPictureOfPage(path) &&
                                                            !QFileInfo::exists(files.text) &&
                                                            !degraded.contains(page->pageIndex())
                                                      : path == files.picture;
        if (isMissing && QFileInfo::exists(path))
            numbers.push_back(page->pageIndex());
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

void FlashPageSourcePDF::makeFiles(PageFiles kind, const std::vector<int>& pages,
                                   const std::atomic<bool>& stop,
                                   const std::function<void(int)>& progress) {
    const auto checkUnchanged = [this] {
        if (iPDFDoc)
            iPDFDoc->checkUnchanged();
    };
    checkUnchanged(); // before files of another document replace those that are there
    iToPageConverter->makeFiles(kind, pages, stop, progress);
    checkUnchanged();
    for (const Pages& all : {iPages, iNormalPages}) {
        for (const auto& page : all) {
            const WebPageFiles files = filesOf(page->pageIndex());
            if (page->pageFilePath() == files.picture && QFileInfo::exists(files.pageFile))
                page->setPageFilePath(files.pageFile);
        }
    }
}
