#include "webbook/StartList.h"
#include "webbook/WebBook.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

TEST(StartList, HasPagesAndLabelsInRuns) {
    WebBook book;
    for (const int number : {3, 4, 5, 8, 9}) {
        WebPage page;
        page.number = number;
        page.picture = QStringLiteral("/work/%1.%2").arg(number).arg(number == 5 ? "jpg" : "png");
        page.thumbnail = number == 9 ? QString() : QStringLiteral("t.jpg");
        page.large = number < 8 ? QStringLiteral("l.vectors") : QString();
        book.pages.push_back(page);
    }
    book.metadata.labels = QStringList{"A-9", "A-10", "007", "${x}<", "9999999999"};
    book.complete({});
    const QByteArray json = StartList::json(book, {1, {}, {}});
    EXPECT_FALSE(json.contains('$') || json.contains('<')) << json.constData();
    const QJsonDocument list = QJsonDocument::fromJson(json);
    const auto compact = [&list](const char* key) {
        return QJsonDocument(list[QLatin1String(key)].toArray()).toJson(QJsonDocument::Compact);
    };
    EXPECT_EQ(compact("numbers"), "[3,3,8,2]");
    EXPECT_EQ(compact("kinds"),
              R"([["page/#.png","thumb/#.jpg","js"],)"
              R"(["page/#.jpg","thumb/#.jpg","js"],)"
              R"(["page/#.png","thumb/#.jpg",""],["page/#.png","page/#.png",""]])");
    EXPECT_EQ(compact("runs"), "[0,2,1,1,2,1,3,1]");
    EXPECT_EQ(QJsonDocument(list["facts"]["labels"].toArray()).toJson(QJsonDocument::Compact),
              R"([["A-",9,2],"007","${x}<","9999999999"])");
    EXPECT_EQ(StartList::json(WebBook(), {1, {}, {}}), QByteArray());
}
