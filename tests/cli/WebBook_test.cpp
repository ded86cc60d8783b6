#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "cli/BookTest.h"
#include "support/PublishedBook.h"
#include "system/Bundle.h"
#include "util/Base91.h"
#include "util/NSData+CocoaDevUsersAdditions.h"
#include "webbook/FolveroOutputWeb.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>

// Web books against what other programs read from the same document.
namespace {

struct Word {
    QString text;
    QRectF box; // points, from the top left of the page as it is seen
};

class WebBookTest : public BookTest {
protected:
    QByteArray publishWeb(const QString& sample, const QStringList& options = {},
                          int exitCode = 0) {
        iPDF = Program::sample(sample);
        const auto result = publish(sample, QStringList{"--type=web", "--quiet"} + options);
        EXPECT_EQ(result.exitCode, exitCode) << result.errors.constData();
        return result.errors;
    }

    // What a program of Poppler's says of a page.
    QByteArray runPoppler(const QString& program, int number, const QStringList& options = {},
                          const QStringList& output = {"-"}) const {
        const QString n = QString::number(number);
        const auto result =
            Program::runOther(program, options + QStringList{"-f", n, "-l", n, iPDF} + output);
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        return result.output;
    }
    QString textByPoppler(int number) const {
        return QString::fromUtf8(runPoppler("pdftotext", number));
    }
    QImage drawnByPoppler(int number) const {
        return QImage::fromData(runPoppler("pdftoppm", number, {"-r", "72", "-aa", "no"}, {}));
    }

    QString iPDF;
};

QRectF boxFrom(const QJsonArray& numbers) {
    const auto points = [&](int at) { return numbers[at].toInt() / 10.0; };
    return {points(0), points(1), points(2), points(3)};
}

// Their boxes where lines run as usual.
std::vector<Word> wordsOf(const QJsonObject& page) {
    std::vector<Word> words;
    for (const auto& entry : page["lines"].toArray()) {
        const QJsonArray line = entry.toArray();
        const QRectF box = boxFrom(line);
        const QJsonArray parts = line[6].toArray();
        for (int i = 0; i + 2 < parts.size(); i += 3) {
            words.push_back({parts[i].toString().trimmed(),
                             {box.x() + parts[i + 1].toInt() / 10.0, box.y(),
                              parts[i + 2].toInt() / 10.0, box.height()}});
        }
    }
    return words;
}

std::vector<Word> wordsFromPoppler(const QByteArray& xml) {
    static const QRegularExpression word(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>)re");
    std::vector<Word> words;
    for (auto found = word.globalMatch(QString::fromUtf8(xml)); found.hasNext();) {
        const auto match = found.next();
        const auto number = [&](int at) { return match.captured(at).toDouble(); };
        QString text = match.captured(5);
        text.replace("&apos;", "'").replace("&amp;", "&");
        words.push_back(
            {text, QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)))});
    }
    return words;
}

// Programs disagree about forms of letters.
QString letters(const QString& text) {
    return text.normalized(QString::NormalizationForm_KC);
}

} // namespace

// The document shows a coloured area beneath each link, turned pages and shifted boxes included.
TEST_F(WebBookTest, PutsLinksWhereTheirAreasAreDrawn) {
    publishWeb("links.pdf");
    int links = 0;
    for (int number = 1; number <= 5; ++number) {
        const QImage picture = drawnByPoppler(number);
        const auto isInArea = [&picture](int x, int y) {
            return picture.pixel(x, y) == qRgb(0xdc, 0xe8, 0xfa);
        };
        const QJsonObject facts = page(number);
        EXPECT_EQ(facts["size"], (QJsonArray{picture.width() * 10, picture.height() * 10}));
        for (const auto& link : facts["links"].toArray()) {
            const QRect place = boxFrom(link.toArray()).toRect();
            const auto [left, top, right, bottom] =
                std::tuple(place.left(), place.top(), place.right(), place.bottom());
            const QPoint middle = place.center();
            EXPECT_TRUE(isInArea(left, top) && isInArea(right, top) && isInArea(left, bottom) &&
                        isInArea(right, bottom))
                << number;
            EXPECT_FALSE(isInArea(left - 1, middle.y()) || isInArea(right + 1, middle.y()) ||
                         isInArea(middle.x(), top - 1) || isInArea(middle.x(), bottom + 1))
                << number;
            ++links;
        }
    }
    EXPECT_GE(links, 12);
}

TEST_F(WebBookTest, HasTheWordsWhereAnotherProgramFindsThem) {
    publishWeb("sample.pdf");
    std::size_t words = 0;
    for (const int number : {4, 5, 14}) {
        const auto others = wordsFromPoppler(runPoppler("pdftotext", number, {"-bbox"}));
        const auto own = wordsOf(page(number));
        for (const Word& other : others) {
            const auto found = std::find_if(own.begin(), own.end(), [&](const Word& word) {
                return letters(word.text) == letters(other.text) &&
                       std::abs(word.box.left() - other.box.left()) < 1.5 &&
                       std::abs(word.box.right() - other.box.right()) < 1.5 &&
                       std::abs(word.box.center().y() - other.box.center().y()) < 3;
            });
            EXPECT_TRUE(found != own.end()) << number << ' ' << other.text.toStdString();
        }
        EXPECT_EQ(own.size(), others.size());
        words += own.size();
    }
    EXPECT_GT(words, 400U);
}

TEST_F(WebBookTest, EscapesTheTextsOfADocumentWhereverTheyStand) {
    publishWeb("hostile.pdf");
    for (const char* name :
         {"index.html", "text.html", "files/web/book.js", "files/search/text.js"}) {
        const QByteArray text = TestFiles::read(file(name));
        EXPECT_FALSE(text.isEmpty()) << name;
        EXPECT_FALSE(text.contains("<img src=x") || text.contains("</title><script")) << name;
    }
    const QByteArray page = TestFiles::read(file("index.html"));
    const QByteArray start = "<script type=\"application/ld+json\">";
    const qsizetype from = page.indexOf(start) + start.size();
    const QByteArray json = page.mid(from, page.indexOf("</script>", from) - from);
    EXPECT_EQ(QJsonDocument::fromJson(json)["@type"], "Book");
}

TEST_F(WebBookTest, HasTextThatTheDocumentForbidsToCopyOnlyIfAsked) {
    auto sheet = PDFBuilder::page({300, 400});
    sheet.fonts = {{"F", "Helvetica"}};
    sheet.content = PDFContent::text("F", 24, {50, 200}, "Classified");
    PDFBuilder builder;
    builder.addPage(sheet);
    builder.encrypt({}, "owner", -4 & ~16);
    ASSERT_TRUE(builder.write(path("secret.pdf")));
    TestFiles::write(path("owner"), "owner");
    const QString owner = "--password-file=" + path("owner");
    for (const QString& option : {QString("--allow-text"), QString("--force"), owner}) {
        const auto result =
            Program::run({"publish", path("secret.pdf"), book(), "--quiet", option});
        ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
        const bool isAllowed = option != u"--force";
        EXPECT_EQ(result.errors.contains("forbids copying its text"), !isAllowed);
        EXPECT_EQ(TestFiles::read(file("files/text/1.js")).contains("Classified"), isAllowed);
        EXPECT_EQ(TestFiles::read(file("files/search/text.js")).contains("Classified"), isAllowed);
        EXPECT_EQ(QFile::exists(file("text.html")), isAllowed);
    }
}

TEST_F(WebBookTest, AnAddressStandsInThePageWithAPictureForLinks) {
    const auto page = [this](const QStringList& options) {
        publishWeb("reference.pdf", QStringList{"--name=my book"} + options);
        return QString::fromUtf8(TestFiles::read(file("my book.html")));
    };
    const QString picture = file("files/web/share.jpg");
    const QString html = page({"--url=https://example.org/b%C3%BCch/tea"});
    const QSize size = QImage(picture).size();
    EXPECT_EQ(std::max(size.width(), size.height()), 1200);
    const QString folder = "https://example.org/b%C3%BCch/tea/";
    for (const QString& wanted : {"og:url\" content=\"" + folder + "my%20book.html\"",
                                  "og:image\" content=\"" + folder + "files/web/share.jpg\"",
                                  "canonical\" href=\"" + folder + "my%20book.html\"",
                                  "\"url\":\"" + folder + "my%20book.html\"",
                                  "\"image\":\"" + folder + "files/web/share.jpg\"",
                                  QString("width\" content=\"%1\"").arg(size.width()),
                                  QString("height\" content=\"%1\"").arg(size.height())})
        EXPECT_TRUE(html.contains(wanted)) << wanted.toStdString();
    EXPECT_TRUE(
        page({"--url=http://x.org/a.b/Tea.HTML"}).contains("\"http://x.org/a.b/Tea.HTML\""));
    EXPECT_TRUE(page({"--url=http://x.org"}).contains("\"http://x.org/my%20book.html\""));
    EXPECT_FALSE(page({}).contains("og:image"));
    EXPECT_FALSE(QFileInfo::exists(picture));
    for (const char* wrong :
         {"", "example.org/a", "/a", "ftp://x.org/a", "https:///a", "https://x.org/a?b",
          "https://x.org/a#b", "https://u:p@x.org/", "https://x.org/a b"})
        EXPECT_TRUE(publishWeb("reference.pdf", {QString("--url=") + wrong}, 2).contains("--url"))
            << wrong;
}

TEST_F(WebBookTest, OneFileHoldsWhatTheFolderDoes) {
    for (const char* sample : {"sample.pdf", "hostile.pdf"}) {
        QDir(book()).removeRecursively();
        publishWeb(sample, {"--pages=1-4"});
        const auto result = Program::run({"publish", iPDF, path(sample), "--type=web",
                                          "--single-file", "--name=my book", "--pages=1-4"});
        ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
        EXPECT_TRUE(result.errors.contains("<iframe src=\"BOOK-ADDRESS/my%20book.html\" title=\""));
        const auto only = BookReader::contentsBeneath(path(sample));
        ASSERT_EQ(only.size(), 1U);
        const QString html = QString::fromUtf8(only.at("my book.html"));

        auto wanted = BookReader::contentsBeneath(file("files"));
        static const QRegularExpression element(
            R"re(<script type="([a-z/]+)" data-file="([^"]+)"(?: data-(?:type="([^"]+)"|packed))?>([^<]*)</script>)re");
        QStringList names;
        for (auto found = element.globalMatch(html); found.hasNext();) {
            const auto match = found.next();
            const QString name = match.captured(2);
            const QString type = match.captured(3); // of data that is no text
            const QByteArray content = match.captured(4).toUtf8();
            names << name;
            if (!type.isEmpty()) {
                EXPECT_EQ(Base91::decode(content), wanted[name]) << name.toStdString();
                wanted.erase(name);
                continue;
            }
            const bool isPlain = match.captured(1) == "application/json";
            const QByteArray text =
                isPlain ? content : NSDataExtension::zlibInflate(Base91::decode(content));
            if (name.endsWith(".js")) {
                EXPECT_EQ(text, wanted[name]);
                wanted.erase(name);
            } else if (name == "web/start") {
                EXPECT_TRUE(text.contains("[\"large/#.js\",\"large/#.js\",\"\"]"))
                    << text.constData();
            } else {
                QJsonDocument expected = data(name);
                if (name == "web/book") {
                    QJsonObject facts = expected.object();
                    facts["textPage"] = "";
                    facts["offline"] = false;
                    facts["large"] = QJsonArray{"", "", "", ""};
                    expected.setObject(facts);
                }
                EXPECT_EQ(QJsonDocument::fromJson(text), expected) << name.toStdString();
                wanted.erase(name + ".js");
            }
        }
        // Vectors take fewer bytes than the pictures of all these pages.
        std::erase_if(wanted, [](const auto& entry) {
            return entry.first.startsWith("page/") || entry.first.startsWith("thumb/");
        });
        EXPECT_EQ(names.mid(0, 3).join(' '), "web/start large/1 text/1") << "seen first";
        for (const char* player : {"page.js", "page.css", "web.js", "web.css"})
            EXPECT_TRUE(html.contains(QString::fromUtf8(wanted[player]))) << player;
        EXPECT_EQ(wanted.size(), 9U) << "the other five are of no use in a page";
        static const QRegularExpression outside(R"re(\s(?:src|href|data)="(?!data:|#))re");
        EXPECT_FALSE(html.contains(outside)) << outside.match(html).captured().toStdString();
        EXPECT_EQ(html.count("<script"), html.count("</script>"));
    }
}

// A template from before pages had places, and one whose placeholders end too early for them.
TEST_F(WebBookTest, ThePageOfAnOlderTemplateGetsWhatAWebBookAdds) {
    PublishedBook book;
    for (const char* part : {"web.js", "web.css", "vectors.js", "reading.js", "notes.js",
                             "contents.js", "search.js", "single.js", "offline.js", "sw.js"})
        book.library.addFile(QString("AppFiles/Web/") + part, part);
    book.addPage("1.jpg", 1, "picture");
    FolveroOutputWeb output(book.pageSource, book.flashTemplate, book.folder(), QString());
    const auto page = [&](const QByteArray& start, bool isSingleFile) {
        book.library.addFile("AppFiles/Templates/float/index.html",
                             start + "<script>1</script></head><body><object x>2</object>3</body>");
        output.setSingleFile(isSingleFile);
        output.ouputTheBook();
        return QString::fromUtf8(book.read("index.html"));
    };
    const auto policy = [](const QString& sources) {
        return "<meta http-equiv=\"Content-Security-Policy\" content=\"script-src 'self' file: " +
               sources + "; object-src 'none'; base-uri 'none'\">";
    };
    const QString one = "'sha256-a4ayc/80/OGda4BO/1o/V0etpOqiLx1JwB5S3beHW0s='";
    const QString folder = page("<head>", false);
    EXPECT_TRUE(
        folder.startsWith("<head>" + policy(one) + "<script>1</script><link rel=\"preload\""))
        << folder.toStdString();
    EXPECT_TRUE(folder.endsWith("<script src=\"files/web.js\"></script>\n</head><body>3</body>"));
    const QString single = page("<head>", true);
    EXPECT_TRUE(single.contains("<script type=\"application/json\" data-file=\"web/start\">"));
    EXPECT_TRUE(single.contains("<script>\nsingle.js</script>\n<style>\nweb.css</style>\n"
                                "<script>\nweb.js</script>\n</head><body>3<script type=\"text/"));
    EXPECT_TRUE(single.endsWith("</script>\n</body>"));
    const QByteArray start = "<Head>\n<meta charset='utf-8'>";
    EXPECT_TRUE(
        page(start +
                 "<img onload = \"a(&quot;b&quot;)\"><script async src='//b.example/x'></script>",
             false)
            .startsWith(start + policy("b.example https: " + one +
                                       " 'unsafe-hashes' 'sha256-zF6vm1In/h+PvgDmJ16jlpnzzHU7"
                                       "YQzvZRzlN+64ZL8='")));
    EXPECT_TRUE(page("<head><script>load('//c.example:8/x', \"https://d.example\")</script>", false)
                    .contains(" file: c.example:8 https://d.example 'sha256-"));
    for (const char* beyond : {"<script>a${x}</script>", "<script>window.eval(1)</script>",
                               "<b onclick='document.write(1)'>", "<a href='javascript:b()'>"})
        EXPECT_FALSE(page(QByteArray("<head>") + beyond, false).contains("script-src")) << beyond;
    EXPECT_EQ(page("a${x}${y}<head>", false),
              "a${y}<head><script>1</script></head><body><object x>2</object>3</body>");
}

TEST_F(WebBookTest, OneFileBeyondTheLimitLeavesTheEarlierOne) {
    PublishedBook book;
    for (const char* part : {"web.js", "web.css", "vectors.js", "reading.js", "notes.js",
                             "contents.js", "search.js", "single.js"})
        book.library.addFile(QString("AppFiles/Web/") + part, part);
    book.addPage("1.jpg", 1, QByteArray(100'001, 'x'));
    FolveroOutputWeb output(book.pageSource, book.flashTemplate, book.folder(), QString());
    output.setHTMLConfig(book.HTMLConfig);
    output.setSingleFile(true);
    output.ouputTheBook();
    ASSERT_TRUE(output.publishErrors().isEmpty());
    const auto earlier = BookReader::contentsBeneath(book.folder());
    ASSERT_EQ(earlier.size(), 1U);
    const qint64 size = earlier.begin()->second.size();
    EXPECT_GT(size, 123'000);

    output.setSingleFileLimit(size);
    output.ouputTheBook();
    EXPECT_TRUE(output.publishErrors().isEmpty()) << "it is within the limit to the byte";
    book.HTMLConfig->setHTMLTitle(book.HTMLConfig->HTMLTitle() + u'x');
    output.ouputTheBook();
    EXPECT_EQ(output.publishErrors().join(' '),
              book.folder() + "/index.html: as one file the book would have 0.2 MB, and the most "
                              "is 0.2 MB; take fewer pages (--pages) or smaller pictures "
                              "(--quality 0), or leave out --single-file");
    EXPECT_EQ(BookReader::contentsBeneath(book.folder()), earlier);
}

TEST_F(WebBookTest, PreviewHoldsNothingOfClosedPages) {
    publishWeb("sample.pdf", {"--pages=1-8"});
    publishWeb("sample.pdf", {"--pages=2-7", "--preview-pages=1,3-4,6,40"});
    const QJsonDocument facts = data("web/book");
    EXPECT_EQ(facts["open"], (QJsonArray{QJsonArray{2, 3}, QJsonArray{5, 5}}));
    EXPECT_EQ(facts["numbers"].toArray().size(), 6);
    auto files = contents();
    static const QRegularExpression numbered(R"re(^files/\w+/(\d+)\.)re");
    std::map<int, int> filesOfPage;
    for (const auto& [name, content] : files) {
        if (const auto match = numbered.match(name); match.hasMatch())
            ++filesOfPage[match.captured(1).toInt()];
    }
    EXPECT_EQ(filesOfPage, (std::map<int, int>{{3, 4}, {4, 4}, {6, 4}}));

    // What is open, contents included, may say the same.
    const QString open = textByPoppler(3) + textByPoppler(4) + textByPoppler(6) +
                         QString::fromUtf8(files.at("files/web/book.js"));
    for (const char* player :
         {"index.html", "files/page.js", "files/page.css", "files/web.js", "files/web.css",
          "files/vectors.js", "files/reading.js", "files/notes.js", "files/contents.js",
          "files/search.js", "files/web/offline.js", "sw.js", "manifest.webmanifest"})
        files.erase(player);
    std::erase_if(files,
                  [](const auto& file) { return file.first.startsWith("files/languages/"); });
    QByteArray& plain = files["text.html"];
    plain.remove(0, plain.indexOf("<main>"));
    static const QRegularExpression blank("\\s+");
    int looked = 0;
    for (const int closed : {2, 5, 7, 8}) {
        for (const QString& word : textByPoppler(closed).split(blank)) {
            if (word.size() < 6 || open.contains(word))
                continue;
            ++looked;
            for (const auto& [name, content] : files) {
                EXPECT_FALSE(content.contains(word.toUtf8()))
                    << word.toStdString() << " of page " << closed << " in " << name.toStdString();
            }
        }
    }
    EXPECT_GT(looked, 30);
}

TEST_F(WebBookTest, OffersTheDocumentWhereAllOfItMayBeRead) {
    const QString offer = "--set=offerDocument=Yes";
    const auto offered = [&](const QStringList& options, const QString& sample = "text.pdf") {
        const QByteArray errors = publishWeb(sample, QStringList{"--pages=1"} + options);
        const bool isThere = QFileInfo::exists(file("files/extfiles/document.pdf"));
        const auto decoded = Program::run({"decode", file("files/UserConfig.bin")});
        EXPECT_EQ(decoded.output.contains("<DownloadFile>extfiles/document.pdf<"), isThere);
        EXPECT_EQ(errors.contains("can't download"), options.contains(offer) && !isThere);
        EXPECT_FALSE(TestFiles::read(file("files/web/offline.json")).contains("document.pdf"));
        return isThere;
    };
    EXPECT_FALSE(offered({}));
    EXPECT_TRUE(offered({offer}));
    EXPECT_EQ(TestFiles::read(file("files/extfiles/document.pdf")), TestFiles::read(iPDF));
    EXPECT_FALSE(offered({})) << "it goes when it is no longer offered";
    EXPECT_FALSE(offered({offer, "--preview-pages=1"}));
    qputenv("FOLVERO_PASSWORD", "secret");
    EXPECT_FALSE(offered({offer}, "encrypted.pdf"));
    qunsetenv("FOLVERO_PASSWORD");
}
