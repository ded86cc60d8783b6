#include "webbook/WebPages.h"

#include <QFileInfo>

namespace {

QString existing(const QString& path) {
    return QFileInfo::exists(path) ? path : QString();
}

WebPage pageFrom(const FlashPage& page, const std::optional<WebPageFiles>& files) {
    WebPage result;
    result.number = page.pageIndex();
    result.picture = page.pageFilePath();
    if (!files || !files->isPictureOfPage(result.picture))
        return result; // provided by the user
    if (QFileInfo::exists(files->picture))
        result.picture = files->picture;
    result.thumbnail = existing(files->thumbnail);
    for (const QString& large : {files->largeVector, files->largePicture, files->largePhotograph}) {
        if (result.large.isNull())
            result.large = existing(large);
    }
    result.text = existing(files->text);
    return result;
}

} // namespace

std::vector<WebPage> webPagesOf(const FlashPageSource& source) {
    std::vector<WebPage> pages;
    const auto failures = source.degradedPages();
    for (const auto& page : source.normalPages()) {
        if (!page)
            continue;
        pages.push_back(pageFrom(*page, source.webFilesOf(page->pageIndex())));
        if (const auto found = failures.find(page->pageIndex()); found != failures.end())
            pages.back().failure = found->second;
    }
    return pages;
}
