#include "pages/FlashPageSourceImg.h"

#include "pages/FlashPageImage.h"

#include <algorithm>

void FlashPageSourceImg::addImgPageFromFile(const QString& path) {
    auto page = std::make_shared<FlashPageImage>();
    page->setPageFilePath(path);
    page->setPageIndex(static_cast<int>(iPages.size()) + 1);
    iPages.push_back(std::move(page));
}

void FlashPageSourceImg::generateNormalPages() {
    for (std::size_t i = 0; i < iPages.size(); ++i) {
        const auto page = iPages[i];
        if (!page || getNormalPageAtIndex(page->pageIndex()))
            continue;
        const auto position = static_cast<std::size_t>(page->pageIndex()) - 1;
        iNormalPages.insert(iNormalPages.begin() + static_cast<std::ptrdiff_t>(
                                                       std::min(position, iNormalPages.size())),
                            page->copyPage(100, 100));
    }
}
