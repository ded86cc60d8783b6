#include "library/BookResult.h"
#include "library/LibraryLayout.h"
#include "support/BookReader.h"
#include "support/ExpectedText.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

using testing::HasSubstr;
using testing::Not;

namespace {

const QString address = "https://books.example.org/l/";
const QString markup = "<script>alert('1')</script> & \"x\" \x01";

// A library, and the program that makes its catalogue.
class CatalogueTest : public testing::Test {
protected:
    CatalogueTest() { QDir(path()).mkpath(LibraryLayout::state); }

    QString path(const QString& name = {}) const { return iRoot.filePath("library/" + name); }
    std::string read(const QString& name) const {
        return TestFiles::read(path(name)).toStdString();
    }
    bool exists(const QString& name) const { return QFileInfo::exists(path(name)); }

    // number: of the time at which the book came
    void addBook(const QString& id, const BookFacts& facts, int number = 0) const {
        BookResult result;
        result.id = id;
        result.pdf = id + ".pdf";
        result.facts = facts;
        result.state = BookResult::State::made;
        BookResult::Made made;
        made.pages = 12;
        made.cover = "files/thumb/1.jpg";
        made.added = QDateTime::fromSecsSinceEpoch(1'700'000'000 + number, Qt::UTC);
        made.changed = made.added;
        result.made = made;
        write(result);
    }
    void write(const BookResult& result) const {
        ASSERT_TRUE(result.write(LibraryLayout(path())).isNull());
    }
    BookResult resultOf(const QString& id) const {
        return BookResult::read(LibraryLayout(path()).result(id)).value();
    }

    Program::Result make(const QStringList& options = {}) const {
        return Program::run(QStringList{"library", "catalogue", path(), "--quiet"} + options);
    }
    void made(const QStringList& options = {}) const {
        const auto result = make(options);
        ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
    }
    pugi::xml_document xml(const QString& name) const {
        pugi::xml_document document;
        EXPECT_TRUE(document.load_file(path(name).toUtf8().constData())) << name.toStdString();
        return document;
    }
    // The one page below a folder of the catalogue whose name begins so.
    QString pageIn(const QString& folder, const QString& start) const {
        return "catalogue/" + folder + '/' +
               QDir(path("catalogue/" + folder)).entryList({start + "*"}).value(0);
    }
    QString bookPage(const QString& id) const {
        for (const QString& group : QDir(path("catalogue/books")).entryList(QDir::Dirs)) {
            const QString page = "catalogue/books/" + group + '/' + id + ".html";
            if (exists(page))
                return page;
        }
        return {};
    }

    // Each link leads to a file, and to a place in it.
    void expectLinksToLead() const {
        static const QRegularExpression link("href=\"([^\":?#]*)(?:#([^\"]+))?\"");
        for (const auto& [name, content] : BookReader::contentsBeneath(path())) {
            if (!name.endsWith(".html"))
                continue;
            const QString folder = QFileInfo(path(name)).path() + '/';
            for (auto each = link.globalMatch(QString::fromUtf8(content)); each.hasNext();) {
                const auto found = each.next();
                const QString target = found.captured(1);
                const QString file =
                    target.isEmpty() ? path(name) : QDir::cleanPath(folder + target);
                if (file.startsWith(path("books/")))
                    continue; // there are none
                EXPECT_TRUE(QFileInfo::exists(file)) << found.captured().toStdString();
                EXPECT_TRUE(
                    found.captured(2).isEmpty() ||
                    TestFiles::read(file).contains("id=\"" + found.captured(2).toUtf8() + '"'))
                    << found.captured().toStdString() << " in " << name.toStdString();
            }
        }
    }

    QTemporaryDir iRoot;
};

TEST_F(CatalogueTest, ShowsWhatFactsHoldAndRunsNoneOfIt) {
    addBook("bad", {markup, markup + "; Ann", "1999", "de", markup, markup});
    addBook("other", {"Other", markup, "1999", "x\"y", "https://example.org/\"<", markup});
    made({"--title", markup, "--url", address, "--contact", "a@b.org"});
    const auto files = BookReader::contentsBeneath(path("catalogue"));
    for (const auto& [name, content] : files) {
        EXPECT_FALSE(name.endsWith(".html") && content.contains("<script>alert"))
            << name.toStdString();
        EXPECT_FALSE(content.contains('\x01')) << name.toStdString();
        if (name.endsWith(".xml") || name.endsWith(".atom") || name.endsWith(".rss"))
            xml("catalogue/" + name);
    }
    const std::string page = read(bookPage("bad"));
    EXPECT_THAT(page, HasSubstr("<meta name=\"DC.title\" content=\"&lt;script&gt;alert(&#39;1"));
    EXPECT_THAT(page, HasSubstr("<meta name=\"DC.creator\" content=\"Ann\">"));
    EXPECT_THAT(page, HasSubstr("\"name\":\"\\u003cscript>"));
    EXPECT_THAT(page, HasSubstr(" dir=\"auto\" lang=\"de\">"));
    EXPECT_THAT(read(bookPage("other")), Not(HasSubstr("lang=\"x")));
}

TEST_F(CatalogueTest, ListsEveryBookOnceInEachOrder) {
    for (int i = 1; i <= 61; ++i)
        addBook(QString("b%1").arg(i),
                {QString("\"Band %1\"").arg(i), i % 2 ? "Zo\u00eb" : "ZOE", "", "", "", ""}, i);
    addBook("first", {"\u00c4pfel", "", "c. 1850", "en", "", "Fruit"}, 62);
    made();
    static const QRegularExpression card("<span class=\"name\"[^>]*>([^<]*)");
    QStringList titles;
    for (const QString name : {"title.html", "title-2.html"}) {
        auto found = card.globalMatch(QString::fromStdString(read("catalogue/" + name)));
        while (found.hasNext())
            titles << found.next().captured(1);
    }
    ASSERT_EQ(titles.size(), 62);
    EXPECT_EQ(titles.mid(0, 3),
              QStringList({"\u00c4pfel", "&quot;Band 1&quot;", "&quot;Band 2&quot;"}));
    EXPECT_EQ(titles.last(), "&quot;Band 61&quot;") << "numbers count as such";
    EXPECT_FALSE(exists("catalogue/title-3.html"));
    EXPECT_THAT(read("catalogue/title.html"), HasSubstr("href=\"../catalogue/title-2.html\""));
    // One author in two spellings, with more books than a page has; a subject of a single book.
    EXPECT_TRUE(exists(pageIn("author", "zoe-")));
    EXPECT_THAT(read("catalogue/authors.html"), HasSubstr("<span class=\"count\">61</span>"));
    EXPECT_THAT(read("catalogue/subjects.html"),
                HasSubstr("href=\"../" + bookPage("first").toStdString()));
    EXPECT_THAT(read("catalogue/year/1850.html"), HasSubstr("\u00c4pfel"));
    EXPECT_THAT(read("catalogue/new.html"), HasSubstr("\u00c4pfel"));
    expectLinksToLead();
}

TEST_F(CatalogueTest, HasTheEarlierBookAfterAFailureAndNoneThatWasNeverMade) {
    addBook("kept", {"Kept", "", "", "", "", ""});
    BookResult failed = resultOf("kept");
    failed.state = BookResult::State::failed;
    write(failed);
    failed.id = "never";
    failed.made.reset();
    write(failed);
    made();
    EXPECT_FALSE(bookPage("kept").isEmpty());
    EXPECT_TRUE(bookPage("never").isEmpty());
}

TEST_F(CatalogueTest, WritesAgainOnlyWhatChanged) {
    for (const QString id : {"one", "two"})
        addBook(id, {id, "Ann", "2001", "en", "", ""});
    made({"--url", address});
    const auto before = BookReader::contentsBeneath(path());
    EXPECT_THAT(make().output.toStdString(), HasSubstr("(0 written, 0 removed)"));
    EXPECT_EQ(BookReader::contentsBeneath(path()), before);
    // A copy has other times, which is no change.
    ASSERT_EQ(::system(("cp -r '" + path() + "' '" + iRoot.filePath("copy") + '\'').toLocal8Bit()),
              0);
    EXPECT_THAT(Program::run({"library", "catalogue", iRoot.filePath("copy"), "--quiet", "--title",
                              "library"})
                    .output.toStdString(),
                HasSubstr("(0 written, 0 removed)"));
    TestFiles::write(path("catalogue/title.html"), "damaged");
    QFile::remove(LibraryLayout(path()).result("two"));
    const QString page = bookPage("two");
    made();
    EXPECT_FALSE(exists(page)) << "the book is gone";
    EXPECT_FALSE(exists("catalogue/author")) << "Ann has a single book";
    EXPECT_THAT(read("catalogue/title.html"), HasSubstr("one"));
}

TEST_F(CatalogueTest, TouchesNoFilesOfOthers) {
    addBook("one", {"One", "", "", "", "", ""});
    TestFiles::write(path("index.html"), "mine");
    const auto refused = make();
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.errors.toStdString(),
                HasSubstr("index.html: is there already and not of a catalogue"));
    EXPECT_FALSE(exists("catalogue")) << "nothing is written before";
    made({"--force"});
    EXPECT_THAT(read("index.html"), HasSubstr("One"));
    TestFiles::write(path("catalogue/mine.html"), "mine");
    made();
    EXPECT_EQ(read("catalogue/mine.html"), "mine");
    QDir(path(LibraryLayout::state)).removeRecursively();
    EXPECT_EQ(make().exitCode, 1) << "no library";
}

TEST_F(CatalogueTest, CompletesWhatAKilledRunBegan) {
    addBook("one", {"One", "", "", "", "", ""});
    QDir(path()).mkpath("catalogue");
    TestFiles::write(path(LibraryLayout::state + "/catalogue.journal"),
                     "catalogue/title.html\ncatalogue/title-9.html\n");
    for (const QString name : {"title.html", "title-9.html", "title.html.part"})
        TestFiles::write(path("catalogue/" + name), "begun");
    made();
    EXPECT_THAT(read("catalogue/title.html"), HasSubstr("One"));
    for (const QString name : {"title-9.html", "title.html.part"})
        EXPECT_FALSE(exists("catalogue/" + name)) << name.toStdString();
}

TEST_F(CatalogueTest, CountsAndLiesAsItsLanguageDoes) {
    for (const char* id : {"one", "two", "three"})
        addBook(id, {id, "", "", "", "", ""});
    make();
    for (const auto& [language, html, books] :
         {std::tuple{"pl", "<html lang=\"pl\">", "3 książki"},
          {"cs", "<html lang=\"cs\">", "3 knihy"},
          {"ar", "<html lang=\"ar\" dir=\"rtl\">", "3 كتب"}}) {
        made({"--language", language});
        EXPECT_THAT(read("index.html"), HasSubstr(html));
        EXPECT_THAT(read("index.html"), HasSubstr(books));
    }
}

TEST_F(CatalogueTest, RemembersItsAddressAndHasNoFeedsWithout) {
    addBook("one", {"One", "", "", "", "", ""});
    const auto plain = make();
    EXPECT_THAT(plain.errors.toStdString(), HasSubstr("without --url"));
    EXPECT_FALSE(exists("sitemap.xml"));
    made({"--url", address.chopped(1), "--language", "de", "--title", "Lesesaal"});
    made();
    EXPECT_TRUE(exists("sitemap.xml"));
    EXPECT_THAT(read("index.html"), HasSubstr("<html lang=\"de\">"));
    EXPECT_THAT(read("index.html"), HasSubstr("Lesesaal"));
    made({"--url", ""});
    EXPECT_FALSE(exists("sitemap.xml"));
    for (const QStringList& wrong : {QStringList{"--url", "books"}, {"--language", "xx"}})
        EXPECT_EQ(make(wrong).exitCode, 2);
}

// With FOLVERO_WRITE_EXPECTED=1 in the environment it is written anew. A line stands where it
// comes first, without the way up to the library's folder.
TEST_F(CatalogueTest, IsAsWrittenDown) {
    addBook("hill", {"A hill & \"more\"", "Ann; Zo\u00eb", "c. 1850", "de",
                     "https://example.org/licence", "Fruit; Trees"});
    addBook("tea", {"Tea", "Ann", "2001-04", "en", "", "Trees"}, 90'000);
    addBook("bare", {"bare", "", "", "", "", ""}, 200);
    QDir().mkpath(path("books/hill"));
    TestFiles::write(path("books/hill/manifest.json"), "{}");
    made({"--url", address, "--title", "Lesesaal", "--contact", "a@b.org", "--oai-gateway",
          "http://gate.example/oai"});
    QByteArrayList found;
    QSet<QByteArray> known;
    for (const auto& [name, content] : BookReader::contentsBeneath(path())) {
        if (name.startsWith(LibraryLayout::state) || name.endsWith(".css") ||
            name.endsWith(".js") || name.endsWith(".svg"))
            continue;
        found << "== " + name.toUtf8();
        for (QByteArray line : content.split('\n')) {
            line.replace("../", "");
            if (!known.contains(line))
                found << line;
            known << line;
        }
    }
    expectLinesOf(FOLVERO_CATALOGUE_TEXT, found);
}

std::string value(const pugi::xml_node& node, const char* query) {
    return node.select_node(query).node().text().get();
}

TEST_F(CatalogueTest, HasFeedsWithAllThatTheirFormatsRequire) {
    for (int i = 0; i < 101; ++i)
        addBook(
            QString("b%1").arg(i),
            {QString("Title %1").arg(i), "Ann; Bob", i ? "1999" : "n.d.", i ? "en" : "fr", "", "S"},
            i);
    QDir(path()).mkpath("books/b7");
    TestFiles::write(path("books/b7/manifest.json"), "{}");
    made({"--url", address, "--contact", "a@b.org", "--oai-gateway", "http://gate.example/oai"});
    for (const QString name : {"new.atom", "opds/index.xml", "opds/all.xml", "opds/all-2.xml",
                               "opds/new.xml", "opds/languages.xml"}) {
        SCOPED_TRACE(name.toStdString());
        const auto document = xml("catalogue/" + name);
        const auto feed = document.child("feed");
        EXPECT_EQ(value(feed, "id"), (address + "catalogue/" + name).toStdString());
        for (const char* needed : {"title", "updated", "author/name", "link[@rel='self']/@href"})
            EXPECT_TRUE(feed.select_node(needed)) << needed;
        EXPECT_FALSE(feed.select_nodes("entry").empty());
        for (const auto& entry : feed.select_nodes("entry")) {
            for (const char* needed : {"id", "title", "updated", "link/@href"})
                EXPECT_TRUE(entry.node().select_node(needed)) << needed;
        }
    }
    for (const QString list : {"index", "languages"})
        EXPECT_TRUE(
            xml("catalogue/opds/" + list + ".xml").select_nodes("//entry[not(content)]").empty());
    const auto all = xml("catalogue/opds/all-2.xml");
    EXPECT_STREQ(all.select_node("//link[@rel='previous']/@href").attribute().value(),
                 (address + "catalogue/opds/all.xml").toUtf8());
    const auto book =
        all.select_node("//entry/link[@rel='http://opds-spec.org/acquisition/open-access']").node();
    EXPECT_STREQ(book.attribute("type").value(), "text/html");
    EXPECT_STREQ(book.attribute("href").value(), (address + "books/b100/").toUtf8());
    const auto rss = xml("catalogue/new.rss");
    EXPECT_EQ(value(rss, "//item/pubDate"), "Tue, 14 Nov 2023 22:15:00 GMT");
    EXPECT_EQ(value(rss, "//item/guid"), value(rss, "//item/link"));
    EXPECT_EQ(xml("sitemap.xml").select_nodes("//url/loc").size(), 203U);
    const auto oai = xml("catalogue/oai.xml");
    EXPECT_EQ(value(oai, "//Identify/oai:baseURL"),
              "http://gate.example/oai/books.example.org/l/catalogue/oai.xml");
    EXPECT_EQ(value(oai, "//Identify/oai:earliestDatestamp"), "2023-11-14");
    EXPECT_EQ(oai.select_nodes("//oai:record[oai:header/oai:identifier]//dc:creator").size(), 202U);
    const auto iiif =
        QJsonDocument::fromJson(TestFiles::read(path("catalogue/iiif/collection.json")));
    EXPECT_EQ(iiif["type"].toString(), "Collection");
    ASSERT_EQ(iiif["items"].toArray().size(), 1);
    EXPECT_EQ(iiif["items"][0]["id"].toString(), address + "books/b7/manifest.json");
}

} // namespace
