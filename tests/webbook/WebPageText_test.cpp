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

TEST(WebPageText, JoinsTheDotsOfContentsInBothDirections) {
    PDFTextLine line{{0, 0, 100, 10}, 0, false, {}, 0};
    line.words = {{"End. ", 0, 20}, {". ", 30, 2}, {". ", 40, 2}, {".", 50, 2}, {"9", 90, 5}};
    PDFTextLine reversed{{0, 0, 100, 10}, 0, true, {}, 0};
    reversed.words = {{". ", 50, 2}, {". ", 40, 2}};
    const QJsonArray lines = WebPageText::asJson({}, {line, reversed}, {})["lines"].toArray();
    EXPECT_EQ(lines[0].toArray().last().toArray(),
              QJsonArray({"End. ", 0, 200, ". . .", 300, 220, "9", 900, 50}));
    EXPECT_EQ(lines[1].toArray().last().toArray(), QJsonArray({". . ", 400, 120}));
}

TEST(WebPageText, TellsContentsAndIndexesFromTextAndTables) {
    const std::pair<const char*, bool> cases[] = {
        {"Contents\n1\nBeginning . . . . 1\n1.1 More ..... iv\nThen . . . 9\nA ... 12\nB ... 20",
         true},
        {"Contents\nBeginning 3\nMore 5\nThen 5\nA house 12\nIts door 100", true},
        {"Index\napple, 4, 12\nbanana, 7\u201399,\ncherry, xi\ndate, 2\nelder, 1, 3", true},
        {"Year Cost\nLamps 90\nChairs 12\nTables 40\nBeds 7\nBoxes 33", false},
        {"He came in 1842\nand saw it. There was nothing\nto see but five doors, 7\nwindows",
         false},
        {"A ... 1\nB ... 2\nC ... 3\nD ... 4", false},
        {"1\n2\n3\n4\n5\n6", false},
        {"", false}};
    for (const auto& [text, isListing] : cases)
        EXPECT_EQ(WebPageText::isListing(QString::fromUtf8(text)), isListing) << text;
}
