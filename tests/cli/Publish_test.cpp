#include "builder/PDFBuilder.h"
#include "cli/BookTest.h"

namespace {

class PublishTest : public BookTest {
protected:
    QString pages() const {
        return QDir(file("files/page")).entryList(QDir::Files, QDir::Name).join(u' ');
    }
};

} // namespace

TEST_F(PublishTest, TellsWhereTheBookIsAndHowFarItHasCome) {
    const auto result = published("outline.pdf");
    EXPECT_EQ(result.output, file("index.html").toUtf8() + '\n');
    EXPECT_TRUE(result.errors.contains("Drawing pages: 9 of 9\n"));
    EXPECT_FALSE(result.errors.contains('\r')); // no bar where nobody watches
    EXPECT_TRUE(published("outline.pdf", {"--quiet"}).errors.isEmpty());
}

TEST_F(PublishTest, TakesTitleAndSettingsIntoTheBook) {
    const QString settings = path("set.txt");
    TestFiles::write(settings, "mainColor=0x010203\r\nbgMRotation=7\r\n");
    published("links.pdf",
              {"--links", "--name=Buch", "--settings", settings, "--set=mainColor=#1E90FF",
               "--title=Ünïcödé 概要 <b>&\" ${index.title}"});
    EXPECT_TRUE(TestFiles::read(file("Buch.html"))
                    .contains("<title>Ünïcödé 概要 &lt;b&gt;&amp;&quot; ${index.title}</title>"));
    const QByteArray xml = BookReader::decipher(TestFiles::read(file("files/UserConfig.bin")));
    const auto lint = Program::runOther("xmllint", {"--noout", "-"},
                                        QProcessEnvironment::systemEnvironment(), xml);
    EXPECT_EQ(lint.exitCode, 0) << lint.errors.constData();
    EXPECT_TRUE(xml.contains(">0x1E90FF<") && !xml.contains("0x010203"));
    EXPECT_TRUE(xml.contains("<OuterGradiantAngle>7<"));
    const BookElement book = BookReader::parse(xml);
    EXPECT_EQ(book.at("Ppts").children.size(), 6U);
    EXPECT_EQ(book.textAt("Ppts/Ppt/Normal/ImgPath"), "page/1.jpg");
}

TEST_F(PublishTest, MakesAnApplicationNamedAfterTheDocument) {
    const auto result = published("outline.pdf", {"--type=app"});
    EXPECT_EQ(result.output, file("outline.app").toUtf8() + '\n');
    const QString resources = "outline.app/Contents/Resources";
    EXPECT_TRUE(exists(resources + "/index.html"));
    EXPECT_EQ(BookReader::configuration(file(resources)).at("Ppts").children.size(), 9U);
}

TEST_F(PublishTest, TakesNamesOfAnyKindInAPlainEnvironment) {
    const QString odd = path("Größe 概要\nzwei");
    ASSERT_TRUE(QDir().mkpath(odd));
    ASSERT_TRUE(QFile::copy(Program::sample("outline.pdf"), odd + "/ä b.pdf"));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C");
    const auto result = Program::runOther(
        Program::path(), {"publish", odd + "/ä b.pdf", odd + "/ö/", "--pages=2", "--quiet"},
        environment);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(QFileInfo::exists(odd + "/ö/index.html"));
}

TEST_F(PublishTest, TakesTheExistingPagesOfARangeAndSaysWhatIsLeftOut) {
    const struct {
        const char* range;
        QString pages;
        const char* remark;
    } cases[] = {
        {"2,4-5", "2.jpg 4.jpg 5.jpg", ""},
        {"9-2147483647", "9.jpg", "has only 9 pages; left out: 10-2147483647"},
        {"1,xyz", "1.jpg", "not clear at \"xyz\"; taking pages 1"},
        {"-1", "1.jpg", "not clear at \"-1\"; taking pages 1"},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.range);
        QDir(book()).removeRecursively();
        const auto result = published("outline.pdf", {QString("--pages=") + item.range});
        EXPECT_EQ(pages(), item.pages);
        EXPECT_TRUE(result.errors.contains(item.remark)) << result.errors.constData();
    }
}

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
        {"files/thumb/1.webp", {}, false},
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
}
