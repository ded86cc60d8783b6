#include "webbook/WebPages.h"

#include "base/PlatformException.h"
#include "drawing/PageWorkers.h"
#include "drawing/WebPageFiles.h"
#include "pages/FlashPageSource.h"
#include "pages/PDFToSWFPageConverter.h"

#include <QFileInfo>
#include <map>
#include <utility>

namespace {

QString existing(const QString& path) {
    return QFileInfo::exists(path) ? path : QString();
}

} // namespace

WebPages::WebPages(Book book) : iBook(std::move(book)) {
    for (const auto& page : iBook.pageSource->normalPages()) {
        if (page)
            iPages.push_back(pageFrom(page->pageIndex(), page->pageFilePath()));
    }
}

bool WebPages::make() {
    if (iBook.document && !drawMissing())
        return false;
    return !iIsCancelled();
}

// A page without a page file could not be drawn before and won't be now.
bool WebPages::drawMissing() {
    const auto& converter = *iBook.converter;
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
    if (!iBook.document)
        return result;
    const WebPageFiles files(iBook.converter->converterWorkFolder(), number);
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
