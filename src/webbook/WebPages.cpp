#include "webbook/WebPages.h"

#include "base/PlatformException.h"
#include "drawing/PageWorkers.h"
#include "drawing/WebPageFiles.h"
#include "pages/FlashPageSourcePDF.h"

#include <QFileInfo>
#include <map>

namespace {

const PDFToSWFPageConverter* converterOf(const FlashPageSource& source) {
    const auto* pdf = dynamic_cast<const FlashPageSourcePDF*>(&source);
    return pdf && pdf->toPageConverter()->PDFDoc() ? pdf->toPageConverter().get() : nullptr;
}

QString existing(const QString& path) {
    return QFileInfo::exists(path) ? path : QString();
}

} // namespace

WebPages::WebPages(const FlashPageSource& source) : iSource(source) {
    for (const auto& page : source.normalPages()) {
        if (page)
            iPages.push_back(pageFrom(page->pageIndex(), page->pageFilePath()));
    }
}

std::shared_ptr<PDFDocument> WebPages::document() const {
    const auto* converter = converterOf(iSource);
    return converter ? converter->PDFDoc() : nullptr;
}

bool WebPages::make() {
    if (converterOf(iSource) && !drawMissing())
        return false;
    return !iIsCancelled();
}

// A page without a page file could not be drawn before and won't be now.
bool WebPages::drawMissing() {
    const auto& converter = *converterOf(iSource);
    std::map<int, WebPage*> missing;
    for (WebPage& page : iPages) {
        if (iIsWanted(page.number) && page.text.isNull() && QFileInfo::exists(page.picture))
            missing[page.number] = &page;
    }
    std::vector<int> numbers;
    numbers.reserve(missing.size());
    for (const auto& [number, page] : missing)
        numbers.push_back(number);

    const std::atomic<bool> never{false};
    PageWorkers workers(converter.PDFPath(), converter.converterWorkFolder(), converter.quality(),
                        numbers, never);
    workers.setForWebBook(true);
    workers.setStopped(iIsCancelled);
    if (!workers.start())
        return true;
    int done = 0;
    for (const auto& [number, page] : missing) {
        const auto result = workers.waitFor(number);
        if (iIsCancelled())
            return false;
        if (!result)
            return true;
        if (result->isUnwritten)
            throw PlatformException(ErrorKind::workFolder, result->error);
        *page = pageFrom(number, page->pageFile);
        page->failure = result->error;
        iProgress(++done, int(missing.size()));
    }
    return true;
}

WebPage WebPages::pageFrom(int number, const QString& pageFile) const {
    WebPage result;
    result.number = number;
    result.pageFile = pageFile;
    result.picture = pageFile;
    const auto* converter = converterOf(iSource);
    if (!converter)
        return result;
    const WebPageFiles files(converter->converterWorkFolder(), number);
    if (result.picture != files.pageFile)
        return result; // provided by the user
    if (QFileInfo::exists(files.picture))
        result.picture = files.picture;
    result.thumbnail = existing(files.thumbnail);
    result.large = existing(files.largeVector);
    if (result.large.isNull())
        result.large = existing(files.largePicture);
    result.text = existing(files.text);
    return result;
}
