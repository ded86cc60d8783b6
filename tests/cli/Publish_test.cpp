#include "builder/PDFBuilder.h"
#include "support/BookReader.h"
#include "support/PixelCheck.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PublishTest : public testing::Test {
protected:
    QString folder() const { return iRoot.filePath(QStringLiteral("book")); }
    QString file(const QString& name) const { return folder() + u'/' + name; }

    Program::Result publish(const QString& sample, const QStringList& options = {}) const {
        return Program::run(
            QStringList{QStringLiteral("publish"), Program::sample(sample), folder()} + options);
    }

    QStringList pageFiles() const {
        return QDir(file(QStringLiteral("files/page"))).entryList(QDir::Files, QDir::Name);
    }

    QTemporaryDir iRoot;
};

const QColor paper(250, 244, 225);
const QColor arrow(200, 60, 40);

struct Turn {
    int page;
    QPointF inArrow; // as fractions of the picture; what lies opposite is paper
    bool wide;
};

} // namespace

TEST_F(PublishTest, TellsWhereTheBookIsAndHowFarItHasCome) {
    const auto result = publish(QStringLiteral("outline.pdf"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(QString::fromUtf8(result.output).trimmed(), file(QStringLiteral("index.html")));
    EXPECT_TRUE(result.errors.contains("Drawing pages: 9 of 9\n"));
    EXPECT_FALSE(result.errors.contains('\r')); // no bar where nobody watches
    EXPECT_TRUE(
        publish(QStringLiteral("outline.pdf"), {QStringLiteral("--quiet")}).errors.isEmpty());
}

TEST_F(PublishTest, WritesAConfigurationThatOthersCanRead) {
    ASSERT_EQ(
        publish(QStringLiteral("links.pdf"), {QStringLiteral("--links"), QStringLiteral("--set"),
                                              QStringLiteral("mainColor=#1E90FF")})
            .exitCode,
        0);
    const QByteArray xml =
        BookReader::decipher(TestFiles::read(file(QStringLiteral("files/UserConfig.bin"))));
    const auto lint = Program::runOther(QStringLiteral("xmllint"),
                                        {QStringLiteral("--noout"), QStringLiteral("-")},
                                        QProcessEnvironment::systemEnvironment(), xml);
    EXPECT_EQ(lint.exitCode, 0) << lint.errors.constData();
    const BookElement book = BookReader::configuration(folder());
    EXPECT_EQ(book.at(QStringLiteral("Ppts")).children.size(), 6U);
    EXPECT_EQ(book.textAt(QStringLiteral("Ppts/Ppt/Normal/ImgPath")), QStringLiteral("page/1.jpg"));
    EXPECT_TRUE(xml.contains("0x1E90FF"));
    EXPECT_EQ(
        BookReader::bytesOfScript(TestFiles::read(file(QStringLiteral("files/UserConfig.js")))),
        TestFiles::read(file(QStringLiteral("files/UserConfig.bin"))));
}

TEST_F(PublishTest, TurnsPagesAsTheDocumentSays) {
    ASSERT_EQ(publish(QStringLiteral("rotated.pdf")).exitCode, 0);
    const QPointF upright(0.65, 0.39); // in the arrow's head, off its middle
    const Turn turns[] = {{1, upright, false},
                          {2, {1 - upright.y(), upright.x()}, true},
                          {3, {1 - upright.x(), 1 - upright.y()}, false},
                          {4, {upright.y(), 1 - upright.x()}, true},
                          {6, {upright.y(), 1 - upright.x()}, true},
                          {7, {1 - upright.y(), upright.x()}, true}};
    for (const Turn& turn : turns) {
        SCOPED_TRACE(turn.page);
        const QImage image(file(QStringLiteral("files/page/%1.jpg").arg(turn.page)));
        EXPECT_EQ(image.size(), turn.wide ? QSize(1200, 800) : QSize(800, 1200));
        const QPointF at = turn.inArrow;
        EXPECT_TRUE(isNear(colourAt(image, at.x(), at.y()), arrow));
        const QPointF opposite =
            turn.wide ? QPointF(1 - at.x(), at.y()) : QPointF(at.x(), 1 - at.y());
        EXPECT_TRUE(isNear(colourAt(image, opposite.x(), opposite.y()), paper));
    }
    EXPECT_EQ(pageFiles().size(), 7);
}

TEST_F(PublishTest, PutsTheTitleIntoThePageSafely) {
    ASSERT_EQ(publish(QStringLiteral("outline.pdf"),
                      {QStringLiteral("--pages=1"), QStringLiteral("--name=Buch"),
                       QStringLiteral("--title=Ünïcödé 概要 <b>&\" ${index.title}")})
                  .exitCode,
              0);
    const QByteArray page = TestFiles::read(file(QStringLiteral("Buch.html")));
    EXPECT_TRUE(page.contains("<title>Ünïcödé 概要 &lt;b&gt;&amp;&quot; ${index.title}</title>"));
}

TEST_F(PublishTest, MakesAnApplicationNamedAfterTheDocument) {
    const auto result = publish(QStringLiteral("outline.pdf"), {QStringLiteral("--type=app")});
    EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_EQ(QString::fromUtf8(result.output).trimmed(), file(QStringLiteral("outline.app")));
    const QString book = QStringLiteral("outline.app/Contents/Resources");
    EXPECT_TRUE(QFileInfo::exists(file(book + QStringLiteral("/index.html"))));
    EXPECT_EQ(BookReader::configuration(file(book)).at(QStringLiteral("Ppts")).children.size(), 9U);
    EXPECT_EQ(publish(QStringLiteral("outline.pdf"), {QStringLiteral("--type=exe")}).exitCode, 2);
}

TEST_F(PublishTest, TakesNamesOfAnyKindInAPlainEnvironment) {
    const QString odd = iRoot.filePath(QStringLiteral("Größe 概要\nzwei"));
    ASSERT_TRUE(QDir().mkpath(odd));
    ASSERT_TRUE(QFile::copy(Program::sample(QStringLiteral("outline.pdf")),
                            odd + QStringLiteral("/ä b.pdf")));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    const auto result = Program::runOther(
        Program::path(),
        {QStringLiteral("publish"), odd + QStringLiteral("/ä b.pdf"), odd + QStringLiteral("/ö/"),
         QStringLiteral("--pages=2"), QStringLiteral("--quiet")},
        environment);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors.toStdString(), "");
    EXPECT_TRUE(QFileInfo::exists(odd + QStringLiteral("/ö/index.html")));
}

TEST_F(PublishTest, TakesTheExistingPagesOfARangeAndSaysWhatIsLeftOut) {
    const struct {
        const char* range;
        QStringList pages;
        const char* remark;
    } cases[] = {
        {"2,4-5", {QStringLiteral("2.jpg"), QStringLiteral("4.jpg"), QStringLiteral("5.jpg")}, ""},
        {"9-2147483647", {QStringLiteral("9.jpg")}, "has only 9 pages; left out: 10-2147483647"},
        {"1,xyz", {QStringLiteral("1.jpg")}, "not clear at \"xyz\"; taking pages 1"},
        {"-1", {QStringLiteral("1.jpg")}, "not clear at \"-1\"; taking pages 1"},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.range);
        QDir(folder()).removeRecursively();
        const auto result = publish(QStringLiteral("outline.pdf"),
                                    {QStringLiteral("--pages=") + QLatin1String(item.range)});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(pageFiles(), item.pages);
        EXPECT_TRUE(result.errors.contains(item.remark)) << result.errors.constData();
    }
}

TEST_F(PublishTest, MakesABookWithoutThePagesThatCannotBeDrawn) {
    const auto result = publish(QStringLiteral("damaged-page.pdf"));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains("page 3: ")) << result.errors.constData();
    EXPECT_EQ(pageFiles().size(), 4);
}

TEST_F(PublishTest, TakesThePageSizeOfTheFirstPageThatCanBeRead) {
    PDFBuilder pdf;
    const int first = pdf.addMissingPage();
    pdf.setObject(pdf.pageObject(first), "<< /Type /Pages /Count 1 /Kids [] >>");
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 210, 300);
    pdf.addPage(page);
    const QString path = iRoot.filePath(QStringLiteral("first.pdf"));
    ASSERT_TRUE(pdf.write(path));
    const auto result = Program::run({QStringLiteral("publish"), path, folder()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains("page 1: ")) << result.errors.constData();
    const BookElement book = BookReader::configuration(folder());
    EXPECT_EQ(book.textAt(QStringLiteral("Ppts/Ppt/Normal/Width")), QStringLiteral("210"));
}

TEST_F(PublishTest, DrawsAHugePageSmaller) {
    EXPECT_EQ(publish(QStringLiteral("huge.pdf")).exitCode, 0);
    QImageReader reader(file(QStringLiteral("files/page/1.jpg")));
    QImageReader::setAllocationLimit(0);
    reader.setScaledSize(QSize(500, 500)); // enough to look at
    const QImage image = reader.read();
    EXPECT_GT(reader.size().width(), 5000);
    EXPECT_EQ(reader.size().width(), reader.size().height());
    ASSERT_FALSE(image.isNull());
    EXPECT_TRUE(isNear(colourAt(image, 0.5, 0.9), QColor(255, 230, 180)));
}

TEST_F(PublishTest, ReadsSettingsFilesOfAnyKind) {
    const QString settings = iRoot.filePath(QStringLiteral("set.txt"));
    const struct {
        const char* name;
        QByteArray content;
        const char* colour;
    } cases[] = {
        {"CR LF", "mainColor=0x010203\r\nbgMRotation=7\r\n", "0x010203"},
        {"LF CR", "mainColor=0x040506\n\rbgMRotation=7\n\r", "0x040506"},
        {"no equals sign", "just words\nmainColor=0x070809\n", "0x070809"},
        {"binary", QByteArray("\0\xff\xfe=\x01\n", 6), "0x26303b"},
        {"empty", "", "0x26303b"},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.name);
        TestFiles::write(settings, item.content);
        EXPECT_EQ(publish(QStringLiteral("outline.pdf"),
                          {QStringLiteral("--pages=1"), QStringLiteral("--settings"), settings})
                      .exitCode,
                  0);
        const QByteArray xml =
            BookReader::decipher(TestFiles::read(file(QStringLiteral("files/UserConfig.bin"))));
        EXPECT_TRUE(xml.contains(item.colour)) << xml.constData();
    }
}

TEST_F(PublishTest, ReplacesFilesThatAreNoBooksWithForceOnly) {
    const auto text = [](const char* latin1) { return QString::fromLatin1(latin1); };
    const QStringList web{text("--type=web")};
    const QStringList single{text("--type=web"), text("--single-file")};
    const QStringList app{text("--type=app"), text("--name=index")};
    const struct {
        const char* foreign;
        QStringList options;
        bool isReplaced;
    } cases[] = {
        {"index.html", {}, true},
        {"index.html", {text("--name=other")}, false},
        {"index.html", web, true},
        {"index.html", single, true},
        {"book.swf", {}, true},
        {"book.swf", single, false},
        {"files/page/1.jpg", {}, true},
        {"files/page/photo.jpg", {}, false},
        {"files/extfiles/mainbgImgUrl.jpg", {}, true},
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
        SCOPED_TRACE(foreign + options.join(u' ').toStdString());
        QDir(folder()).removeRecursively();
        TestFiles::write(file(text(foreign)), "mine");
        const auto before = BookReader::contentsBeneath(folder());
        const auto again = [&, &with = options](const QStringList& more = {}) {
            return publish(text("outline.pdf"), with + QStringList{text("--pages=1")} + more);
        };
        if (isReplaced) {
            const auto refused = again();
            EXPECT_EQ(refused.exitCode, 1);
            EXPECT_TRUE(
                refused.errors.contains("folvero: " + file(text(foreign)).toUtf8() + ": ") ||
                options == app)
                << refused.errors.constData();
            EXPECT_EQ(BookReader::contentsBeneath(folder()), before);
            EXPECT_EQ(again({text("--force")}).exitCode, 0);
        }
        EXPECT_EQ(again().exitCode, 0);
        EXPECT_EQ(again().exitCode, 0); // over a book of ours
        const auto mine = before.begin();
        EXPECT_EQ(QFileInfo(file(mine->first)).isFile() &&
                      TestFiles::read(file(mine->first)) == mine->second,
                  !isReplaced);
    }
}

TEST_F(PublishTest, KnowsWhatABookOfTheOtherKindLacks) {
    const auto text = [](const char* latin1) { return QString::fromLatin1(latin1); };
    const QStringList classic{text("--pages=1")};
    const QStringList web{text("--pages=1"), text("--type=web")};
    ASSERT_EQ(publish(text("outline.pdf"), classic).exitCode, 0);
    TestFiles::write(file(text("files/web.js")), "mine");
    EXPECT_EQ(publish(text("outline.pdf"), web).exitCode, 1);
    ASSERT_EQ(publish(text("outline.pdf"), web + QStringList{text("--force")}).exitCode, 0);
    TestFiles::write(file(text("book.swf")), "mine");
    EXPECT_EQ(publish(text("outline.pdf"), web).exitCode, 1);
    TestFiles::write(file(text("text.html")), "mine");
    ASSERT_EQ(publish(text("outline.pdf"), classic + QStringList{text("--force")}).exitCode, 0);
    EXPECT_EQ(TestFiles::read(file(text("text.html"))), "mine");
}
