#include "webbook/WebPageText.h"

#include <QJsonArray>
#include <gtest/gtest.h>

TEST(WebPageText, HasOnlyLinksThatLieOnThePage) {
    const PDFAnnotation link{"Link", QRectF(1, 2, 3, 4), "http://a/", {}};
    const PDFAnnotation above{"Link", QRectF(1, 12, 3, 4), "http://a/", {}};
    for (const auto& [size, links] : {std::pair(QSizeF(10, 10), 1U), {QSizeF(10, -10), 0U}}) {
        const PDFPage page{{}, {0, 0, 10, 10}, 0, size, {}};
        EXPECT_EQ(WebPageText::linksOf(page, {link, above}, {}).size(), links);
    }
}
