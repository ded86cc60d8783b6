#include "library/search/LibrarySearch.h"

#include "base/PlatformException.h"
#include "library/TestLibrary.h"
#include "library/search/SearchSegments.h"
#include "system/FileState.h"

#include <gtest/gtest.h>

namespace {

class LibrarySearchTest : public testing::Test {
protected:
    // "BOOK/POSITION" of all pages that are found, sorted.
    std::string find(const QString& typed, const QString& book = {}) {
        LibrarySearch::Options options;
        options.book = book;
        options.most = 100;
        const auto answer = search.find(SearchQuery(typed), options);
        QStringList places;
        for (const auto& hit : answer.hits)
            places << QStringLiteral("%1/%2").arg(hit.book).arg(hit.position);
        EXPECT_EQ(answer.count, places.size()) << typed.toStdString();
        places.sort();
        return places.join(u' ').toStdString();
    }
    QString segment(const QString& id) const {
        return SearchSegments::file(library.layout, SearchSegments::ofBook(id));
    }

    TestLibrary library;
    LibrarySearch search{library.layout};
};

} // namespace

TEST_F(LibrarySearchTest, FindsWhatIsOnAPageAndNothingElse) {
    library.add("de", {"Die Größe der Mühle", "", "Straßen-\nbahn und gut-bürgerlich"});
    library.add("en", {"the quick brown fox", "a brown quick cow", "quickly"});
    library.add("ja", {"日本語の本", "日本へ", "本日"});
    library.add("odd", {"NEAR AND OR NOT columns", "pages MATCH words : parts", "100% a_b"});
    const auto report = library.index();
    EXPECT_EQ(report.books, 4);
    EXPECT_EQ(report.pages, 12);
    const std::pair<const char*, const char*> cases[] = {
        {"GROSSE", "de/1"},
        {"muhle", "de/1"},
        {"Strassenbahn", "de/3"},
        {"bahn", "de/3"},
        {"gutbürgerlich", ""},
        {"gut-bürgerlich", "de/3"},
        {"quick", "en/1 en/2"},
        {"quick*", "en/1 en/2 en/3"},
        {"quick brown", "en/1 en/2"},
        {"\"quick brown\"", "en/1"},
        {"fox cow", ""},
        {"日", "ja/1 ja/2 ja/3"},
        {"日本", "ja/1 ja/2"},
        {"日本語", "ja/1"},
        {"の", "ja/1"},
        {"near AND not", "odd/1"},
        {"words:pages", ""},
        {"pages", "odd/2"},
        {"\"", ""},
        {"* ^ - ( ) { } +", ""},
        {"NOT quick", ""},
        {"100", "odd/3"},
        {"a OR b", ""},
    };
    for (const auto& [query, places] : cases)
        EXPECT_EQ(find(QString::fromUtf8(query)), places) << query;
    EXPECT_EQ(find("brown", "en"), "en/1 en/2");
    EXPECT_EQ(find("brown", "de"), "");
    EXPECT_EQ(find("brown", "none"), "");
    EXPECT_EQ(find(QString::fromUtf8("a\0quick", 7)), "");
}

TEST_F(LibrarySearchTest, PutsPagesThatSayMoreOfTheWordsFirst) {
    QString filler;
    for (int i = 0; i < 300; ++i)
        filler += " other";
    library.add("a", {"whale" + filler, "whale whale whale" + filler, "whale"});
    library.index();
    LibrarySearch::Options options;
    std::string order;
    for (options.first = 0; options.first < 3; ++options.first) {
        options.most = 1;
        for (const auto& hit : search.find(SearchQuery("whale"), options).hits)
            order += std::to_string(hit.position);
    }
    EXPECT_EQ(order, "231");
}

TEST_F(LibrarySearchTest, FollowsTheBooksAndWritesOnlyWhereTheyChange) {
    library.add("first", {"early"});
    library.add("second", {"steady"});
    ASSERT_NE(segment("first"), segment("second"));
    library.index();
    EXPECT_EQ(find("early"), "first/1"); // the search has the files open from here on
    const FileState untouched = FileState::of(segment("second"));
    // Several times: rows that nobody needs any more must not come back.
    for (const QString word : {"late", "later", "latest"}) {
        library.add("first", {word, "end"});
        const auto report = library.index();
        EXPECT_EQ(report.added, 1);
        EXPECT_EQ(report.removed, 0);
        EXPECT_EQ(find("early"), "");
        EXPECT_EQ(find("lat*"), "first/1");
        EXPECT_EQ(find("end"), "first/2");
    }
    EXPECT_EQ(FileState::of(segment("second")), untouched);
    library.remove("first");
    EXPECT_EQ(library.index().removed, 1);
    EXPECT_EQ(find("lat*"), "");
    EXPECT_EQ(find("steady"), "second/1");
    EXPECT_EQ(library.index().added, 0);
}

TEST_F(LibrarySearchTest, AddsToALargeSegmentWithoutRewritingIt) {
    QStringList pages;
    for (int i = 0; i < 3000; ++i)
        pages << QStringLiteral("page number %1").arg(i);
    library.add("large", pages);
    library.index();
    QString neighbour;
    for (int i = 0; neighbour.isEmpty(); ++i) {
        const QString id = QStringLiteral("small%1").arg(i);
        if (segment(id) == segment("large"))
            neighbour = id;
    }
    for (const QString word : {"apple", "pear"}) {
        library.add(neighbour, {word});
        library.index();
        EXPECT_EQ(find(word), neighbour.toStdString() + "/1");
        EXPECT_EQ(find("2999"), "large/3000");
    }
    EXPECT_EQ(find("apple"), "");
    // And a search that takes too long ends.
    LibrarySearch::Options options;
    options.time = std::chrono::milliseconds(0);
    const auto answer = search.find(SearchQuery("page number"), options);
    EXPECT_TRUE(answer.isMore);
    EXPECT_LT(answer.count, 3000);
    options.time = std::chrono::minutes(1);
    EXPECT_EQ(search.find(SearchQuery("page number"), options).count, 3000);
}

TEST_F(LibrarySearchTest, SharesTheWorkBetweenShards) {
    for (int i = 0; i < 40; ++i)
        library.add(QStringLiteral("book%1").arg(i), {"common"});
    int added = 0;
    for (int shard = 0; shard < 3; ++shard) {
        const int part = library.index({shard, 3, {}, {}}).added;
        EXPECT_LT(part, 30);
        added += part;
    }
    EXPECT_EQ(added, 40);
    EXPECT_EQ(search.find(SearchQuery("common"), {}).count, 40);
    EXPECT_EQ(library.index().added, 0);
}

TEST_F(LibrarySearchTest, KeepsTheOldIndexWhenARunEndsEarlyAndLetsNoOtherIn) {
    library.add("book", {"old"});
    library.index();
    library.add("book", {"new"});
    LibraryIndexer::Options options;
    options.isCancelled = [this] {
        try {
            library.index();
            ADD_FAILURE() << "two runs at once";
        } catch (const PlatformException& failure) {
            EXPECT_TRUE(failure.message().isTemporary());
        }
        // After it has begun to write.
        return QFile::exists(segment("book") + ".part");
    };
    EXPECT_THROW(library.index(options), PlatformException);
    EXPECT_EQ(find("old"), "book/1");
    EXPECT_FALSE(QFile::exists(segment("book") + ".part"));
    TestFiles::write(segment("book") + ".part", "left by a run that was killed");
    library.index();
    EXPECT_EQ(find("new"), "book/1");
}

TEST_F(LibrarySearchTest, RepairsADamagedIndexAndReportsBooksThatCannotBeRead) {
    library.add("good", {"fine"});
    library.add("bad", {"fine"});
    library.index();
    TestFiles::write(segment("good"), QByteArray(5000, 'x'));
    EXPECT_EQ(find("fine"), "bad/1");
    TestFiles::write(library.layout.book("bad") + "/files/search/text.js", "folveroData(");
    library.note("bad", 1);
    library.note("gone", 1);
    auto report = library.index();
    report.unreadable.sort();
    EXPECT_EQ(report.unreadable, QStringList({"bad", "gone"}));
    EXPECT_EQ(report.books, 1);
    EXPECT_EQ(find("fine"), "good/1");
}
