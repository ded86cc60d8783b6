#include "pages/FlashPageSourceImg.h"

#include "pages/FlashPageImage.h"

#include <gtest/gtest.h>

TEST(FlashPageSourceImg, NumbersPagesInOrderOfAddingAndCopiesThemOnce) {
    FlashPageSourceImg source;
    for (const char* path : {"/a.jpg", "/b.png", "/c.jpg"})
        source.addImgPageFromFile(QString::fromLatin1(path));
    source.generateNormalPages();
    source.generateNormalPages();

    ASSERT_EQ(source.normalPages().size(), 3U);
    EXPECT_EQ(source.getPageAtIndex(0)->pageIndex(), 1);
    EXPECT_EQ(source.getPageAtIndex(3), nullptr);
    const auto second = source.getNormalPageAtIndex(2);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->pageFilePath(), "/b.png");
    EXPECT_NE(second, source.getPageAtIndex(1)); // a copy, of the same class
    EXPECT_TRUE(std::dynamic_pointer_cast<FlashPageImage>(second));
    EXPECT_FALSE(source.ownsPageFiles());
}
