#include "library/search/BookTexts.h"

#include <QJsonDocument>
#include <QStringList>
#include <gtest/gtest.h>

// Lines as the files of web books have them: box, turn, whether from the right, and words with
// their starts and lengths along the line, in tenths of a point.
TEST(PageWords, LieWhereTheirLinesRun) {
    const PageWords page(QJsonDocument::fromJson(R"({"size": [6000, 8000], "lines": [
        [100, 200, 800, 120, 0, 0, ["over ", 0, 400, "the ha-", 400, 350]],
        [100, 400, 800, 120, 0, 0, ["rbour", 50, 500]],
        [3000, 100, 120, 900, 90, 0, ["down", 100, 400]],
        [4000, 100, 120, 900, 270, 0, ["up", 100, 400]],
        [100, 600, 800, 120, 180, 0, ["back", 0, 400]],
        [100, 800, 800, 120, 0, 1, ["אב", 200, 400]],
        ["?", null, 1e99, {}, "x", [], [7, "y", []]]]})")
                             .object());
    EXPECT_EQ(page.size(), QSizeF(600, 800));
    EXPECT_EQ(page.text(), "over the ha-\nrbour\ndown\nup\nback\nאב\n");
    const std::pair<const char*, const char*> cases[] = {
        {"over", "10 20 40x12"},     {"ver", "20 20 30x12"},
        {"over the", "10 20 55x12"}, {"ha-\nrbour", "70 20 15x12, 15 40 50x12"},
        {"down", "300 20 12x40"},    {"do", "300 20 12x20"},
        {"up", "400 20 12x40"},      {"u", "400 40 12x20"},
        {"b", "40 60 10x12"},        {"א", "50 80 20x12"},
    };
    for (const auto& [words, expected] : cases) {
        const qsizetype from = page.text().lastIndexOf(QString::fromUtf8(words));
        QStringList boxes;
        for (const QRectF& box : page.boxesOf(from, from + QString::fromUtf8(words).size()))
            boxes << QString("%1 %2 %3x%4")
                         .arg(box.x())
                         .arg(box.y())
                         .arg(box.width())
                         .arg(box.height());
        EXPECT_EQ(boxes.join(", ").toStdString(), expected) << words;
    }
}
