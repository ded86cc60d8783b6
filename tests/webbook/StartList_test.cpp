#include "picture/JPEGEncoder.h"
#include "picture/PhotographMark.h"
#include "picture/PictureHeader.h"
#include "webbook/StartList.h"
#include "webbook/WebBook.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
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
    EXPECT_FALSE(list.object().contains("next"));
    EXPECT_TRUE(StartList::json(book, {1, {}, {}}, {2, 3}).contains("\"next\":[2,3]"));
    EXPECT_EQ(StartList::json(WebBook(), {1, {}, {}}), QByteArray());
}

TEST(StartList, NamesPhotographs) {
    const QTemporaryDir folder;
    WebBook book;
    // Shares of a page's rows that are white, a little yellow as a scan's paper.
    for (const int percent : {0, 19, 21, 100}) {
        PageBitmap page;
        page.resize(40, 100, 3);
        for (int i = 0; i < 40 * 100; ++i) {
            const auto colour =
                i < 40 * percent ? std::array{250, 245, 220} : std::array{255, 90, 60};
            std::copy(colour.begin(), colour.end(), page.data() + std::ptrdiff_t(i) * 3);
        }
        JPEGEncoder encoder;
        const auto jpeg = encoder.encode(page, 1);
        const QByteArray bytes =
            PhotographMark::isPhotograph(page)
                ? PhotographMark::marked(jpeg)
                : QByteArray(reinterpret_cast<const char*>(jpeg.data()), qsizetype(jpeg.size()));
        EXPECT_EQ(PictureHeader::sizeOfJPEG(bytes), QSize(40, 100));
        EXPECT_TRUE(PictureHeader::isWholeJPEG(bytes));
        WebPage& added = book.pages.emplace_back();
        added.number = int(book.pages.size());
        added.picture = QStringLiteral("p.png");
        added.thumbnail = folder.filePath(QStringLiteral("%1.jpg").arg(percent));
        QFile file(added.thumbnail);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    book.complete({});
    const QJsonDocument list = QJsonDocument::fromJson(StartList::json(book, {1, {}, {}}));
    const QJsonArray kinds = list["kinds"].toArray();
    ASSERT_EQ(kinds.size(), 2);
    EXPECT_EQ(kinds[0][3].toString(), "photo");
    EXPECT_TRUE(kinds[1][3].isUndefined());
    EXPECT_EQ(list["runs"].toArray(), (QJsonArray{0, 2, 1, 2}));
}
