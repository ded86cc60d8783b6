#include "app/desktop/BookCover.h"

#include "pages/Book.h"
#include "pages/FlashPageSource.h"
#include "webbook/ShareImage.h"

QByteArray BookCover::of(const Book& book) {
    constexpr QSize box(256, 256);
    const auto page = book.pageSource ? book.pageSource->getPageAtIndex(0) : nullptr;
    return page ? ShareImage::of(page->pageFilePath(), box).jpeg : QByteArray();
}
