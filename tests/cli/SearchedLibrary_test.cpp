#include "cli/BookTest.h"
#include "cli/Served.h"
#include "library/TestLibrary.h"

#include <QJsonDocument>
#include <QUrl>

namespace {

// A library with a book in several scripts and one of plain texts.
class SearchedLibraryTest : public testing::Test {
protected:
    SearchedLibraryTest() {
        const auto result = Program::run(
            {"publish", Program::sample("cjk-rtl.pdf"), library.layout.book("scripts")});
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        const QByteArray texts =
            TestFiles::read(library.layout.book("scripts") + '/' + BookLayout::searchText);
        // One more where there is a font for it.
        iPages = int(QJsonDocument::fromJson(WebScript::jsonIn(BookLayout::searchText, texts))
                         .array()
                         .size());
        library.note("scripts", iPages);
        library.add("plain", {"Ein <b>Hügel</b> & mehr", "Hugel", "x"}, {"i", "ii", "1"});
    }

    QString folder() const { return library.layout.folder(); }
    void index() const {
        const auto result = Program::run({"library", "index", folder(), "--quiet"});
        EXPECT_EQ(result.output, "2 books with " + QByteArray::number(3 + iPages) +
                                     " pages in the index; 2 added, 0 removed\n");
        EXPECT_EQ(result.errors, "");
    }

    TestLibrary library;
    int iPages = 0; // of the first book
};

class ServedLibrary : public Served {
public:
    explicit ServedLibrary(const QString& folder)
        : Served(folder, {"--port=0"}, {}, {"library", "serve"}) {}

    QJsonObject find(const QByteArray& words, const QByteArray& more = {}) const {
        return json("/search?q=" + words.toPercentEncoding() + more);
    }
    QJsonObject json(const QByteArray& target) const {
        const Answer answer = get(target);
        EXPECT_EQ(answer.status, 200) << target.constData() << answer.body.constData();
        return QJsonDocument::fromJson(answer.body).object();
    }
};

QStringList fieldsOf(const QJsonObject& answer, const QString& name) {
    QStringList fields;
    for (const QJsonValue& hit : answer["hits"].toArray())
        fields << hit[name].toVariant().toStringList().join(u'|');
    return fields;
}

} // namespace

TEST_F(SearchedLibraryTest, IsSearchedInTheBrowser) {
    index();
    const ServedLibrary served(folder());
    EXPECT_EQ(served.page, "/search.html");
    const QJsonObject answer = served.find("hügel");
    EXPECT_EQ(answer["total"], 2);
    EXPECT_EQ(answer["more"], false);
    EXPECT_EQ(fieldsOf(answer, "snippet").filter("<b>"), QStringList("Ein <b>|Hügel|</b> & mehr"));
    EXPECT_TRUE(fieldsOf(answer, "label").contains("ii"));
    EXPECT_EQ(fieldsOf(served.find("光が", "&book=scripts"), "address").value(0),
              "books/scripts/index.html#page=3&search=%E5%85%89%E3%81%8C");
    EXPECT_EQ(served.find("الصباح")["total"], 1);
    EXPECT_EQ(served.find("הבוקר")["total"], 1);
    EXPECT_EQ(served.find("빛이")["total"], 1);
    EXPECT_EQ(served.get("/books/scripts/index.html").status, 200);
    EXPECT_EQ(served.get("/.folvero-library/search/lock").status, 404);
    // What the server has open is replaced, and one of the pages is gone.
    library.add("plain", {"Tal", "Hugel"});
    library.index();
    EXPECT_EQ(served.find("hügel")["total"], 1);
    EXPECT_EQ(served.find("tal")["total"], 1);
    library.remove("plain"); // without a new index
    EXPECT_EQ(fieldsOf(served.find("hügel"), "book"), QStringList());
}

TEST_F(SearchedLibraryTest, IsSearchedWithoutScripts) {
    index();
    const ServedLibrary served(folder());
    const Answer page = served.get("/search?q=h%C3%BCgel", "Accept: text/html,*/*\r\n");
    EXPECT_EQ(page.header("content-type"), "text/html; charset=utf-8");
    EXPECT_TRUE(page.header("content-security-policy").startsWith("default-src 'none';"));
    EXPECT_TRUE(page.body.contains("<p dir=\"auto\">Ein &lt;b&gt;<mark>Hügel</mark>&lt;/b&gt;"));
    EXPECT_TRUE(page.body.contains("books/plain/index.html#page=1&amp;search=h%C3%BCgel"));
    const Answer hostile = served.get("/search.html?q=%22%3E%3Cscript%3E&book=%22%3E%3Cscript%3E");
    EXPECT_FALSE(hostile.body.contains("<script"));
}

TEST_F(SearchedLibraryTest, MarksWordsInViewers) {
    index();
    TestFiles::write(library.layout.book("plain") + "/manifest.json",
                     R"({"items": [{"id": "https://example.org/b/canvas/1", "width": 1200,
                                    "height": 1600}]})");
    const ServedLibrary served(folder());
    const QJsonObject page = served.json("/books/plain/search?q=h%C3%BCgel&motivation=painting");
    EXPECT_EQ(page["type"], "AnnotationPage");
    EXPECT_EQ(page["ignored"], QJsonArray{"motivation"});
    const QJsonArray hits = page["items"].toArray();
    ASSERT_EQ(hits.size(), 2);
    EXPECT_EQ(hits[0]["body"].toObject(),
              (QJsonObject{{"type", "TextualBody"}, {"value", "Hügel"}, {"format", "text/plain"}}));
    EXPECT_EQ(hits[0]["motivation"], "highlighting");
    // Letters 7 to 11 of a page 600 points wide, on a canvas of 1200 pixels.
    EXPECT_EQ(hits[0]["target"], "https://example.org/b/canvas/1#xywh=140,0,100,24");
    const QString host = QStringLiteral("http://127.0.0.1:%1").arg(served.port);
    EXPECT_EQ(hits[1]["target"], host + "/books/plain/canvas/2#xywh=0,0,50,12");
    const QJsonValue context = page["annotations"][0]["items"][0]["target"];
    EXPECT_EQ(context["source"], hits[0]["id"]);
    EXPECT_EQ(context["type"], "SpecificResource");
    const QJsonValue quote = context["selector"][0];
    EXPECT_EQ(quote["type"], "TextQuoteSelector");
    EXPECT_EQ(quote["prefix"].toString() + quote["exact"].toString(), "Ein <b>Hügel");
    EXPECT_TRUE(quote["suffix"].toString().startsWith("</b>"));
    EXPECT_EQ(served.json("/books/none/search?q=x")["items"], QJsonArray());
}

TEST_F(SearchedLibraryTest, StandsStrangeRequests) {
    const ServedLibrary served(folder());
    EXPECT_EQ(served.send(served.request("HEAD", "/search")).status, 404) << "no index yet";
    index();
    EXPECT_EQ(served.send(served.request("HEAD", "/search")).status, 200);
    const std::pair<QByteArray, int> cases[] = {
        {"/search", 200},
        {"/search?q=%00", 200},
        {"/search?q=%FF%C3%28", 200},
        {"/search?q=%22a%22%20NEAR(%29%20%7B%20%5E*%20-%3A%20OR", 200},
        {"/search?q=a&q=b&page=-3&book=..%2F..", 200},
        {"/search?q=a&page=99999999999999999999", 200},
        {"/search?q=" + QByteArray(5000, 'a'), 400},
        {"/search?q=" + QByteArray(1'000'000, 'a'), 414},
        {"/books/..%2f/search?q=a", 404},
        {"/books/../search?q=a", 404},
    };
    for (const auto& [target, status] : cases)
        EXPECT_EQ(served.get(target).status, status) << target.left(60).constData();
    EXPECT_EQ(served.send(served.request("POST", "/search?q=a")).status, 405);
    EXPECT_EQ(served.send("GET /search?q=a HTTP/1.1\r\nHost: example.org\r\n\r\n").status, 403);
}

TEST_F(SearchedLibraryTest, IsExportedAsLines) {
    const QString file = folder() + "/../export.jsonl";
    const auto result = Program::run(
        {"library", "export", folder(), "--url=https://example.org/l", "--output", file});
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    const QByteArray lines = TestFiles::read(file);
    QFile::remove(file);
    EXPECT_EQ(lines.count('\n'), 2 + iPages + 3);
    const auto page = QJsonDocument::fromJson(lines.split('\n')[1]).object();
    EXPECT_EQ(page,
              (QJsonObject{{"type", "page"},
                           {"id", "plain/1"},
                           {"book", "plain"},
                           {"position", 1},
                           {"label", "i"},
                           {"text", "Ein <b>Hügel</b> & mehr"},
                           {"address", "https://example.org/l/books/plain/index.html#page=1"}}));
    const auto books = Program::run({"library", "export", folder(), "--books"}).output.split('\n');
    EXPECT_EQ(QJsonDocument::fromJson(books[0])["title"], "Title of plain");
    EXPECT_EQ(books.size(), 3);
    TestFiles::write(library.layout.book("plain") + "/files/search/text.js", "");
    EXPECT_EQ(Program::run({"library", "export", folder(), "--pages"}).exitCode, 3);
}

TEST_F(SearchedLibraryTest, IsNeededByItsCommands) {
    const QString empty = folder() + "/books";
    for (const char* command : {"index", "serve", "export"}) {
        const auto result = Program::run({"library", command, empty});
        EXPECT_EQ(result.exitCode, 1) << command;
        EXPECT_TRUE(result.errors.contains("no library in it")) << command;
    }
    EXPECT_EQ(Program::run({"library", "index", folder(), "--shard=3/2"}).exitCode, 2);
}
