#include "pages/Book.h"

#include "pages/FlashPageSource.h"
#include "pages/PDFToSWFPageConverter.h"

bool Book::hasDrawnPages() const {
    return pageSource && document && converter->failedPages().size() < pageSource->pages().size();
}
