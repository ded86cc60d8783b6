#pragma once

#include "pages/FlashPageSource.h"

// A page source over image files.
class FlashPageSourceImg : public FlashPageSource {
public:
    // Appends a page; pages are numbered in the order of adding.
    void addImgPageFromFile(const QString& path);
    void generateNormalPages() override;
};
