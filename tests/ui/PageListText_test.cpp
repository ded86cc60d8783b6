#include "ui/PageListText.h"

#include <QtWidgets>
#include <gtest/gtest.h>

TEST(PageListText, JoinsRunsAndShortensLongLists) {
    EXPECT_EQ(PageListText::of({7}), "7");
    EXPECT_EQ(PageListText::of({1, 2, 4, 6, 7, 8}), "1 to 2, 4, 6 to 8");
    std::vector<int> odd;
    for (int page = 1; page < 122; page += 2)
        odd.push_back(page);
    EXPECT_EQ(PageListText::of(odd), "1, 3, 5, 7, 9 and 56 more");
}
