#include "pages/FlashPageSource.h"

#include "util/PageRange.h"

std::vector<int> FlashPageSource::parsePageRange(const QString& expression, int atTotalPage) {
    return pagesFromExpression(expression, atTotalPage);
}

void FlashPageSource::clearPages() {
    iPages.clear();
    iNormalPages.clear();
    iZoomedPages.clear();
    iThumbPages.clear();
}

std::shared_ptr<FlashPage> FlashPageSource::getPageAtIndex(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= iPages.size())
        return nullptr;
    return iPages[index];
}

std::shared_ptr<FlashPage> FlashPageSource::getNormalPageAtIndex(int pageIndex) const {
    for (const auto& page : iNormalPages) {
        if (page && page->pageIndex() == pageIndex)
            return page;
    }
    return nullptr;
}

std::shared_ptr<FlashPage> FlashPageSource::getZoomedPageAtIndex(int /*pageIndex*/) const {
    return nullptr;
}

std::shared_ptr<FlashPage> FlashPageSource::getThumbPageAtIndex(int /*pageIndex*/) const {
    return nullptr;
}
