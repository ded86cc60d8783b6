#include "output/FolveroOutputWeb.h"
#include "platform/Bundle.h"
#include "support/Program.h"
#include "support/PublishedBook.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

// Web books against what other programs read from the same document.
namespace {

struct Word {
    QString text;
    QRectF box; // points, from the top left of the page as it is seen
};

class WebBookTest : public testing::Test {
protected:
    QString file(const QString& name) const {
        return iRoot.filePath(QStringLiteral("book/")) + name;
    }

    QByteArray publish(const QString& sample, const QStringList& options = {}, int exitCode = 0) {
        iPDF = Program::sample(sample);
        const auto result = Program::run(
            QStringList{QStringLiteral("publish"), iPDF, file({}), QStringLiteral("--type"),
                        QStringLiteral("web"), QStringLiteral("--quiet")} +
            options);
        EXPECT_EQ(result.exitCode, exitCode) << result.errors.constData();
        return result.errors;
    }

    // The data that a script of the book hands over under its name.
    QJsonDocument data(const QString& name) const {
        const QByteArray script = TestFiles::read(file(QStringLiteral("files/%1.js").arg(name)));
        const QByteArray start = "folveroData(\"" + name.toUtf8() + "\", ";
        EXPECT_TRUE(script.startsWith(start)) << name.toStdString();
        return QJsonDocument::fromJson(script.mid(start.size()).chopped(3));
    }
    QJsonObject page(int number) const {
        return data(QStringLiteral("text/%1").arg(number)).object();
    }

    // The text of a page as another program reads it.
    QString textByPoppler(int number) const {
        const QString n = QString::number(number);
        return QString::fromUtf8(
            runPoppler(QStringLiteral("pdftotext"), {QStringLiteral("-f"), n, QStringLiteral("-l"),
                                                     n, iPDF, QStringLiteral("-")}));
    }

    QByteArray runPoppler(const QString& program, const QStringList& arguments) const {
        const auto result = Program::runOther(program, arguments);
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        return result.output;
    }
    QImage drawnByPoppler(int number) const {
        const QString n = QString::number(number);
        return QImage::fromData(runPoppler(
            QStringLiteral("pdftoppm"),
            {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-aa"),
             QStringLiteral("no"), QStringLiteral("-f"), n, QStringLiteral("-l"), n, iPDF}));
    }

    QTemporaryDir iRoot;
    QString iPDF;
};

QRectF boxFrom(const QJsonArray& numbers) {
    const auto points = [&](int at) { return numbers[at].toInt() / 10.0; };
    return {points(0), points(1), points(2), points(3)};
}

// Their boxes where lines run as usual.
std::vector<Word> wordsOf(const QJsonObject& page) {
    std::vector<Word> words;
    for (const auto& entry : page[QStringLiteral("lines")].toArray()) {
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
    static const QRegularExpression word(QStringLiteral(
        R"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>)re"));
    std::vector<Word> words;
    for (auto found = word.globalMatch(QString::fromUtf8(xml)); found.hasNext();) {
        const auto match = found.next();
        const auto number = [&](int at) { return match.captured(at).toDouble(); };
        QString text = match.captured(5);
        text.replace(QStringLiteral("&apos;"), QStringLiteral("'"))
            .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
        words.push_back(
            {text, QRectF(QPointF(number(1), number(2)), QPointF(number(3), number(4)))});
    }
    return words;
}

// Letters alone: programs disagree about marks of direction and forms of letters.
QString letters(const QString& text) {
    QString result;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KC)) {
        if (letter.category() != QChar::Other_Format)
            result += letter;
    }
    return result;
}

// All files beneath a folder, by their paths in it.
std::map<QString, QByteArray> filesIn(const QString& folder) {
    std::map<QString, QByteArray> files;
    for (QDirIterator entry(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         entry.hasNext();) {
        const QString path = entry.next();
        files[QDir(folder).relativeFilePath(path)] = TestFiles::read(path);
    }
    return files;
}

// The rectangle of that colour that lies around a place.
QRectF areaAround(const QImage& picture, QPoint place, QRgb colour) {
    QRect area(place, QSize(1, 1));
    const auto is = [&](int x, int y) {
        return picture.valid(x, y) && picture.pixel(x, y) == colour;
    };
    if (!is(place.x(), place.y()))
        return {};
    while (is(area.left() - 1, place.y()))
        area.setLeft(area.left() - 1);
    while (is(area.right() + 1, place.y()))
        area.setRight(area.right() + 1);
    while (is(area.left(), area.top() - 1))
        area.setTop(area.top() - 1);
    while (is(area.left(), area.bottom() + 1))
        area.setBottom(area.bottom() + 1);
    return area;
}

} // namespace

// The document shows a coloured area beneath each link, turned pages and shifted boxes included.
TEST_F(WebBookTest, PutsLinksWhereTheirAreasAreDrawn) {
    publish(QStringLiteral("links.pdf"));
    constexpr QRgb area = qRgb(0xdc, 0xe8, 0xfa);
    int links = 0;
    for (int number = 1; number <= 5; ++number) {
        const QImage picture = drawnByPoppler(number);
        const QJsonObject facts = page(number);
        EXPECT_EQ(facts[QStringLiteral("size")],
                  (QJsonArray{picture.width() * 10, picture.height() * 10}));
        for (const auto& link : facts[QStringLiteral("links")].toArray()) {
            const QRectF place = boxFrom(link.toArray());
            // Text may stand in the middle.
            const QRectF drawn = areaAround(
                picture, place.topLeft().toPoint() + QPoint(2, int(place.height()) - 3), area);
            EXPECT_EQ(drawn, place.toRect()) << number;
            ++links;
        }
    }
    EXPECT_GE(links, 12);
}

TEST_F(WebBookTest, MapsPagesToTheirPositionsWhenOthersAreLeftOut) {
    publish(QStringLiteral("links.pdf"), {QStringLiteral("--pages"), QStringLiteral("2-4")});
    EXPECT_EQ(data(QStringLiteral("web/book"))[QStringLiteral("numbers")], (QJsonArray{2, 3, 4}));
    const auto targets = [&](int number) {
        QJsonArray array;
        for (const auto& link : page(number)[QStringLiteral("links")].toArray())
            array.append(link[4]);
        return array;
    };
    // Page 1 of the document is not in the book.
    EXPECT_EQ(targets(3),
              (QJsonArray{QStringLiteral("https://www.example.org/books?page=1&size=2"), 0}));
    EXPECT_FALSE(QFileInfo::exists(file(QStringLiteral("files/text/1.js"))));
    EXPECT_TRUE(QFileInfo::exists(file(QStringLiteral("files/large/2.svg"))));
}

TEST_F(WebBookTest, HasNeitherSizeNorPictureOfAnUnreadablePage) {
    const QByteArray errors = publish(QStringLiteral("damaged-page.pdf"), {}, 3);
    EXPECT_FALSE(errors.contains("picture only")) << errors.constData();
    EXPECT_EQ(page(3)[QStringLiteral("size")].toArray(), (QJsonArray{0, 0}));
}

TEST_F(WebBookTest, HasTheWordsWhereAnotherProgramFindsThem) {
    publish(QStringLiteral("sample.pdf"));
    std::size_t words = 0;
    for (const int number : {4, 5, 14}) {
        const QString n = QString::number(number);
        const auto others = wordsFromPoppler(runPoppler(
            QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-f"), n,
                                          QStringLiteral("-l"), n, iPDF, QStringLiteral("-")}));
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

TEST_F(WebBookTest, ReadsScriptsOfAllDirections) {
    publish(QStringLiteral("cjk-rtl.pdf"));
    const QJsonArray texts = data(QStringLiteral("search/text")).array();
    // One page more where the machine has a font to take letters from.
    ASSERT_GE(texts.size(), 6);
    for (int number = 1; number <= int(texts.size()); ++number) {
        // Where a mark or a blank goes between the two directions is where programs differ.
        const auto sorted = [](const QString& text) {
            QString result;
            for (const QChar letter : letters(text)) {
                if (letter.isLetterOrNumber())
                    result += letter;
            }
            std::sort(result.begin(), result.end());
            return result.toStdString();
        };
        EXPECT_EQ(sorted(texts[number - 1].toString()), sorted(textByPoppler(number))) << number;
    }
    const auto lines = [&](int position) {
        return texts[position - 1].toString().split(u'\n').mid(1);
    };
    EXPECT_EQ(lines(3),
              (QStringList{QStringLiteral("ページをめくる本"), QStringLiteral("朝の光が川に落ちる"),
                           QStringLiteral("カタカナとひらがな")}));
    EXPECT_EQ(
        lines(5),
        (QStringList{QStringLiteral("ספר שאפשר לדפדף בו"), QStringLiteral("אור הבוקר על הנהר"),
                     QStringLiteral("עמוד 12 מתוך 48"), QStringLiteral("נייר, דיו ו-PDF")}));
    EXPECT_EQ(
        lines(6),
        (QStringList{QStringLiteral("كتاب تقلب صفحاته"), QStringLiteral("ضوء الصباح على النهر"),
                     QStringLiteral("الصفحة 12 من 48"), QStringLiteral("ورق وحبر و PDF")}));
}

TEST_F(WebBookTest, TakesNoMoreThanHalfAsManyBytesAgain) {
    publish(QStringLiteral("sample.pdf"));
    const QString classic = iRoot.filePath(QStringLiteral("classic"));
    ASSERT_EQ(Program::run({QStringLiteral("publish"), iPDF, classic, QStringLiteral("--quiet")})
                  .exitCode,
              0);
    const auto bytes = [](const QString& folder) {
        qint64 sum = 0;
        QDir files(folder);
        for (const QFileInfo& info : files.entryInfoList(QDir::Files))
            sum += info.size();
        for (const QString& name : files.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const QFileInfo& info : QDir(files.filePath(name)).entryInfoList(QDir::Files))
                sum += info.size();
        }
        return double(sum);
    };
    EXPECT_LT(bytes(file(QStringLiteral("files"))),
              1.5 * bytes(classic + QStringLiteral("/files")));
    for (int number = 1; number <= 18; ++number) {
        EXPECT_TRUE(QFileInfo::exists(file(QStringLiteral("files/thumb/%1.webp").arg(number))))
            << number;
    }
}

TEST_F(WebBookTest, TellsOfItselfWithoutLettingTextsOutOfTheirPlaces) {
    publish(QStringLiteral("hostile.pdf"));
    for (const QString& name :
         {QStringLiteral("index.html"), QStringLiteral("text.html"),
          QStringLiteral("files/web/book.js"), QStringLiteral("files/search/text.js")}) {
        const QByteArray text = TestFiles::read(file(name));
        EXPECT_FALSE(text.isEmpty()) << name.toStdString();
        EXPECT_FALSE(text.contains("<img src=x")) << name.toStdString();
        EXPECT_FALSE(text.contains("</title><script")) << name.toStdString();
    }
    const QByteArray page = TestFiles::read(file(QStringLiteral("index.html")));
    const QByteArray start = "<script type=\"application/ld+json\">";
    const qsizetype from = page.indexOf(start) + start.size();
    const QByteArray json = page.mid(from, page.indexOf("</script>", from) - from);
    EXPECT_EQ(QJsonDocument::fromJson(json)[QStringLiteral("@type")], QStringLiteral("Book"));
}

TEST_F(WebBookTest, OneFileHoldsWhatTheFolderDoes) {
    const QStringList some{QStringLiteral("--pages"), QStringLiteral("1-4")};
    for (const QString& sample : {QStringLiteral("sample.pdf"), QStringLiteral("hostile.pdf")}) {
        QDir(file({})).removeRecursively();
        publish(sample, some);
        const QString folder = iRoot.filePath(sample);
        const auto result = Program::run(
            QStringList{QStringLiteral("publish"), iPDF, folder, QStringLiteral("--type"),
                        QStringLiteral("web"), QStringLiteral("--single-file"),
                        QStringLiteral("--name"), QStringLiteral("my book")} +
            some);
        ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
        EXPECT_TRUE(result.errors.contains("<iframe src=\"BOOK-ADDRESS/my%20book.html\" title=\""));
        const auto only = filesIn(folder);
        ASSERT_EQ(only.size(), 1U);
        const QString html = QString::fromUtf8(only.at(QStringLiteral("my book.html")));

        auto wanted = filesIn(file(QStringLiteral("files")));
        static const QRegularExpression element(QStringLiteral(
            R"re(<script type="[a-z/]+" data-file="([^"]+)"(?: data-type="([^"]+)")?>([^<]*)</script>)re"));
        for (auto found = element.globalMatch(html); found.hasNext();) {
            const auto match = found.next();
            const QString name = match.captured(1);
            const QByteArray content = match.captured(3).toUtf8();
            if (!match.captured(2).isEmpty()) {
                EXPECT_EQ(QByteArray::fromBase64(content), wanted[name]) << name.toStdString();
                EXPECT_EQ(match.captured(2) == u"image/webp", name.endsWith(u".webp"));
                wanted.erase(name);
                continue;
            }
            QJsonObject facts = data(name).object();
            if (name == u"web/book") {
                facts[QStringLiteral("textPage")] = QString(QLatin1String(""));
                facts[QStringLiteral("offline")] = false;
            }
            const auto own = QJsonDocument::fromJson(content);
            EXPECT_TRUE(own.isArray() ? own == data(name) : own.object() == facts)
                << name.toStdString();
            wanted.erase(name + QStringLiteral(".js"));
        }
        const QByteArray configuration = wanted[QStringLiteral("UserConfig.bin")].toBase64();
        EXPECT_TRUE(html.contains(
            QStringLiteral("FolveroUserConfig = \"%1\";").arg(QString::fromLatin1(configuration))));
        EXPECT_TRUE(html.contains(QString::fromUtf8(wanted[QStringLiteral("web.js")])));
        EXPECT_TRUE(html.contains(QString::fromUtf8(wanted[QStringLiteral("web.css")])));
        EXPECT_EQ(wanted.size(), 7U) << "the other five are of no use in a page";
        static const QRegularExpression outside(
            QStringLiteral(R"re(\s(?:src|href|data)="(?!data:))re"));
        EXPECT_FALSE(html.contains(outside)) << outside.match(html).captured().toStdString();
        EXPECT_EQ(html.count(QStringLiteral("<script")), html.count(QStringLiteral("</script>")));
    }
}

TEST_F(WebBookTest, OneFileBeyondTheLimitLeavesTheEarlierOne) {
    PublishedBook book;
    for (const char* part : {"web.js", "web.css"}) {
        const QString folder = Bundle::resourcePath() + QStringLiteral("/AppFiles/Web/");
        ASSERT_TRUE(QDir().mkpath(folder));
        TestFiles::write(folder + QString::fromLatin1(part), part);
    }
    book.addPage(QStringLiteral("1.jpg"), 1, QByteArray(100'001, 'x'));
    FolveroOutputWeb output(book.pageSource, book.flashTemplate, book.folder(), QString());
    output.setHTMLConfig(book.HTMLConfig);
    output.setSingleFile(true);
    output.ouputTheBook();
    ASSERT_TRUE(output.publishErrors().isEmpty());
    const auto earlier = filesIn(book.folder());
    ASSERT_EQ(earlier.size(), 1U);
    const qint64 size = earlier.begin()->second.size();
    EXPECT_GT(size, 133'000);

    output.setSingleFileLimit(size);
    output.ouputTheBook();
    EXPECT_TRUE(output.publishErrors().isEmpty()) << "it is within the limit to the byte";
    book.HTMLConfig->setHTMLTitle(book.HTMLConfig->HTMLTitle() + u'x');
    output.ouputTheBook();
    EXPECT_EQ(
        output.publishErrors(),
        QStringList{book.folder() +
                    QStringLiteral("/index.html: as one file the book would have 0.2 MB, and "
                                   "the most is 0.2 MB; take fewer pages (--pages) or smaller "
                                   "pictures (--quality 0), or leave out --single-file")});
    EXPECT_EQ(filesIn(book.folder()), earlier);
}

TEST_F(WebBookTest, PreviewHoldsNothingOfClosedPages) {
    publish(QStringLiteral("sample.pdf"), {QStringLiteral("--pages"), QStringLiteral("1-8")});
    publish(QStringLiteral("sample.pdf"),
            {QStringLiteral("--pages"), QStringLiteral("2-7"), QStringLiteral("--preview-pages"),
             QStringLiteral("1,3-4,6,40")});
    const QJsonDocument facts = data(QStringLiteral("web/book"));
    EXPECT_EQ(facts[QStringLiteral("open")], (QJsonArray{QJsonArray{2, 3}, QJsonArray{5, 5}}));
    EXPECT_EQ(facts[QStringLiteral("numbers")].toArray().size(), 6);
    const auto files = filesIn(file({}));
    EXPECT_TRUE(files.at(QStringLiteral("index.html")).contains("content=\"files/thumb/3.webp\""));
    const QRegularExpression numbered(QStringLiteral(R"re(^files/\w+/(\d+)\.)re"));
    std::map<int, int> filesOfPage;
    for (const auto& [name, content] : files) {
        if (const auto match = numbered.match(name); match.hasMatch())
            ++filesOfPage[match.captured(1).toInt()];
    }
    EXPECT_EQ(filesOfPage, (std::map<int, int>{{3, 4}, {4, 4}, {6, 4}}));

    static const QRegularExpression blank(QStringLiteral("\\s+"));
    const auto wordsOfPage = [&](int number) { return textByPoppler(number).split(blank); };
    // What is open, contents included, may say the same.
    QStringList known = wordsOfPage(3) + wordsOfPage(4) + wordsOfPage(6);
    known << QString::fromUtf8(files.at(QStringLiteral("files/web/book.js"))).split(blank);
    auto ofBook = files;
    for (const char* player : {"index.html", "files/web.js", "files/web.css",
                               "files/web/offline.js", "sw.js", "manifest.webmanifest"})
        ofBook.erase(QString::fromLatin1(player));
    QByteArray& plain = ofBook[QStringLiteral("text.html")];
    plain.remove(0, plain.indexOf("<main>"));
    int looked = 0;
    for (const int closed : {2, 5, 7, 8}) {
        for (const QString& word : wordsOfPage(closed)) {
            if (word.size() < 6 || known.join(u' ').contains(word))
                continue;
            ++looked;
            for (const auto& [name, content] : ofBook) {
                EXPECT_FALSE(content.contains(word.toUtf8()))
                    << word.toStdString() << " of page " << closed << " in " << name.toStdString();
            }
        }
    }
    EXPECT_GT(looked, 30);
}

TEST_F(WebBookTest, WhatIsForWebBooksIsRefusedForOthers) {
    const QString pdf = Program::sample(QStringLiteral("sample.pdf"));
    const auto refusal = [&](const QStringList& options) {
        const auto result =
            Program::run(QStringList{QStringLiteral("publish"), pdf, file({})} + options);
        EXPECT_FALSE(QFileInfo::exists(file({})));
        return QStringLiteral("%1 ").arg(result.exitCode) + QString::fromUtf8(result.errors);
    };
    EXPECT_EQ(refusal({QStringLiteral("--single-file")}),
              QStringLiteral("2 folvero: --single-file is for web books only; add --type web\n"));
    EXPECT_EQ(refusal({QStringLiteral("--preview-pages=1"), QStringLiteral("--type=app")}),
              QStringLiteral("2 folvero: --preview-pages is for web books only; add --type web\n"));
    EXPECT_EQ(refusal({QStringLiteral("--preview-pages=1-3"), QStringLiteral("--type=web"),
                       QStringLiteral("--pages=5-9")}),
              QStringLiteral("1 folvero: --preview-pages 1-3: the book has none of these pages, it "
                             "has 5-9\n"));
    EXPECT_TRUE(
        refusal({QStringLiteral("--preview-pages=99"), QStringLiteral("--type=web")})
            .startsWith(QStringLiteral("1 folvero: --preview-pages: the page range \"99\"")));
}

TEST_F(WebBookTest, LeavesOthersFilesAloneAndTakesItsOwnAway) {
    ASSERT_TRUE(QDir().mkpath(file({})));
    TestFiles::write(file(QStringLiteral("sw.js")), "// of the school's site");
    publish(QStringLiteral("text.pdf"));
    EXPECT_EQ(TestFiles::read(file(QStringLiteral("sw.js"))), "// of the school's site");
    EXPECT_FALSE(QFileInfo::exists(file(QStringLiteral("manifest.webmanifest"))));
    EXPECT_FALSE(data(QStringLiteral("web/book")).object()[QStringLiteral("offline")].toBool());

    ASSERT_TRUE(QFile::remove(file(QStringLiteral("sw.js"))));
    publish(QStringLiteral("text.pdf"));
    const QString own[] = {QStringLiteral("sw.js"),
                           QStringLiteral("manifest.webmanifest"),
                           QStringLiteral("text.html"),
                           QStringLiteral("files/search/text.js"),
                           QStringLiteral("files/text/1.js"),
                           QStringLiteral("files/web.js"),
                           QStringLiteral("files/web/offline.js")};
    for (const QString& name : own)
        EXPECT_TRUE(QFileInfo::exists(file(name))) << name.toStdString();
    const auto plain = Program::run({QStringLiteral("publish"), iPDF, file({}),
                                     QStringLiteral("--pages=1"), QStringLiteral("--quiet")});
    ASSERT_EQ(plain.exitCode, 0) << plain.errors.constData();
    for (const QString& name : own)
        EXPECT_FALSE(QFileInfo::exists(file(name))) << name.toStdString();
    EXPECT_TRUE(QFileInfo::exists(file(QStringLiteral("files/page/1.jpg"))));
}
