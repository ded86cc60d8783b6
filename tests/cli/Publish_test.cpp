#include "builder/PDFBuilder.h"
#include "cli/BookTest.h"

#include <QJsonDocument>

namespace {

class PublishTest : public BookTest {
protected:
    QString pages() const {
        return QDir(file("files/page")).entryList(QDir::Files, QDir::Name).join(u' ');
    }
};

} // namespace

TEST_F(PublishTest, TakesThePageSizeOfTheFirstPageThatCanBeRead) {
    PDFBuilder pdf;
    const int first = pdf.addMissingPage();
    pdf.setObject(pdf.pageObject(first), "<< /Type /Pages /Count 1 /Kids [] >>");
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 210, 300);
    pdf.addPage(page);
    ASSERT_TRUE(pdf.write(path("first.pdf")));
    const auto result = publish(path("first.pdf"));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains("page 1: malformed page tree")) << result.errors.constData();
    EXPECT_EQ(pages(), "2.jpg");
    EXPECT_EQ(BookReader::configuration(book()).textAt("Ppts/Ppt/Normal/Width"), "210");
}

TEST_F(PublishTest, NamesPagesThatAreDamaged) {
    PDFBuilder pdf;
    pdf.addPage(PDFBuilder::page({300, 400}, "/Gone Do"));
    ASSERT_TRUE(pdf.write(path("torn.pdf")));
    for (int run = 0; run < 2; ++run) { // the second makes it anew
        const auto result = publish(path("torn.pdf"), {"--report=" + path("report.json")});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_TRUE(result.errors.contains("\n  page 1: an image can't be read completely\n"))
            << result.errors.constData();
        const auto report = QJsonDocument::fromJson(TestFiles::read(path("report.json")));
        EXPECT_EQ(report["damagedPages"][0]["page"].toInt(), 1);
    }
}

TEST_F(PublishTest, ReadsFromRightToLeftAsTheDocumentAsksUnlessOptionsSayOtherwise) {
    PDFBuilder pdf;
    pdf.addPage(PDFBuilder::page({300, 400}));
    pdf.addCatalogEntries("/ViewerPreferences << /Direction /R2L >>");
    ASSERT_TRUE(pdf.write(path("hebrew.pdf")));
    TestFiles::write(path("set.txt"), "RightToLeft=No");
    const std::pair<QStringList, QString> cases[] = {
        {{}, "YES"}, {{"--set=RightToLeft=No"}, "NO"}, {{"--settings=" + path("set.txt")}, "No"}};
    for (const auto& [options, expected] : cases) {
        published(path("hebrew.pdf"), options);
        EXPECT_EQ(BookReader::configuration(book()).textAt("Properties/RightToLeft"), expected);
    }
}

TEST_F(PublishTest, WebBooksOpenWhereAndAsTheDocumentAsks) {
    const struct {
        QByteArray entries, options, expected;
    } cases[] = {{"/PageMode /UseOutlines /OpenAction [4 0 R /Fit]", "",
                  "\"panel\":\"contents\",\"start\":2"},
                 {"/PageMode /UseThumbs /OpenAction << /S /GoTo /D (end) >>", "--pages=2-3",
                  "\"panel\":\"thumbs\",\"start\":2"},
                 {"/PageMode /FullScreen /OpenAction /old", "", "\"outline\":[],\"start\":3"},
                 {"/OpenAction << /S /URI /D [4 0 R /Fit] >>", "", "\"outline\":[],\"text\""},
                 {"/OpenAction (end)", "--preview-pages=1", "\"outline\":[],\"text\""}};
    for (const auto& [entries, options, expected] : cases) {
        PDFBuilder pdf;
        for (int page = 0; page < 3; ++page)
            pdf.addPage(PDFBuilder::page({300, 400}));
        pdf.addNamedDestination("end", pdf.destination(2));
        pdf.addOldNamedDestination("old", pdf.destination(2));
        pdf.addCatalogEntries(
            QByteArray(entries).replace("4 0 R", pdf.reference(pdf.pageObject(1))));
        ASSERT_TRUE(pdf.write(path("asks.pdf")));
        published(path("asks.pdf"), {"--type=web", options.isEmpty() ? "--force" : options});
        const QByteArray data = TestFiles::read(file("files/web/book.js"));
        EXPECT_TRUE(data.contains(expected)) << data.constData();
    }
}

TEST_F(PublishTest, ReplacesFilesThatAreNoBooksWithForceOnly) {
    const QStringList web{"--type=web"};
    const QStringList single{"--type=web", "--single-file"};
    const QStringList app{"--type=app", "--name=index"};
    const struct {
        QString foreign;
        QStringList options;
        bool isReplaced;
    } cases[] = {
        {"index.html", {}, true},
        {"index.html", {"--name=other"}, false},
        {"index.html", web, true},
        {"index.html", single, true},
        {"book.swf", {}, true},
        {"book.swf", single, false},
        {"files/page/1.jpg", {}, true},
        {"files/page/photo.jpg", {}, false},
        {"files/extfiles/mainbgImgUrl.jpg", {}, true},
        {"files/extfiles/moveSound.mp3", {}, true},
        {"files/web.js", {}, false},
        {"files/thumb/1.jpg", {}, false},
        {"files/web.js", web, true},
        {"files/text/1.js", web, true},
        {"text.html", {}, false},
        {"text.html", web, true},
        {"sw.js", web, false},
        {"index.app", app, true},
        {"index.app/Contents/Resources/index.html", app, true},
    };
    for (const auto& [foreign, options, isReplaced] : cases) {
        SCOPED_TRACE((foreign + options.join(u' ')).toStdString());
        QDir(book()).removeRecursively();
        TestFiles::write(file(foreign), "mine");
        const auto before = contents();
        const QStringList all = options + QStringList{"--pages=1"};
        if (isReplaced) {
            const auto refused = publish("outline.pdf", all);
            EXPECT_EQ(refused.exitCode, 1);
            const QString named = options == app ? QString("index.app") : foreign;
            EXPECT_TRUE(refused.errors.contains("folvero: " + file(named).toUtf8() + ": "))
                << refused.errors.constData();
            EXPECT_EQ(contents(), before);
            published("outline.pdf", all + QStringList{"--force"});
        }
        published("outline.pdf", all);
        published("outline.pdf", all); // over a book of ours
        const auto after = contents();
        const auto now = after.find(foreign);
        EXPECT_EQ(now == after.end() || now->second != "mine", isReplaced);
    }
}

TEST_F(PublishTest, KnowsWhatABookOfTheOtherKindLacks) {
    const QStringList classic{"--pages=1"};
    const QStringList web{"--pages=1", "--type=web"};
    const QStringList force{"--force"};
    published("outline.pdf", classic);
    TestFiles::write(file("files/web.js"), "mine");
    EXPECT_EQ(publish("outline.pdf", web).exitCode, 1);
    published("outline.pdf", web + force);
    TestFiles::write(file("book.swf"), "mine");
    EXPECT_EQ(publish("outline.pdf", web).exitCode, 1);
    TestFiles::write(file("text.html"), "mine");
    published("outline.pdf", classic + force);
    EXPECT_EQ(TestFiles::read(file("text.html")), "mine");
    TestFiles::write(file("files/extfiles/document.pdf"), "mine");
    EXPECT_EQ(publish("outline.pdf", classic + QStringList{"--set=offerDocument=Yes"}).exitCode, 1);
}
