#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "cli/BookTest.h"

#include <QImage>
#include <QImageWriter>
#include <QJsonArray>

// Books of several documents and pictures.
namespace {

class MergedInput : public BookTest {
protected:
    Program::Result merge(const QStringList& inputs, const QStringList& options = {}) const {
        return Program::run(QStringList{"publish", "--quiet"} + inputs + QStringList{book()} +
                            options);
    }

    // The upper half of it is of that colour, the lower half white.
    QString picture(const QString& name, QSize size, Qt::GlobalColor colour,
                    QImageIOHandler::Transformations turn = {}) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int y = 0; y < size.height() / 2; ++y)
            std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), size.width(),
                        QColor(colour).rgb());
        QImageWriter writer(path(name));
        writer.setTransformation(turn);
        writer.setQuality(95);
        EXPECT_TRUE(writer.write(image)) << name.toStdString();
        return path(name);
    }

    // The name of the colour at a place of a page, as shares of its size.
    QString colour(int page, double x, double y) const {
        const QStringList files = QDir(file("files/page")).entryList({QString("%1.*").arg(page)});
        const QImage image(file("files/page/" + files.value(0)));
        const QColor found = image.pixelColor(int(x * image.width()), int(y * image.height()));
        for (const char* name : {"red", "lime", "blue", "white"}) {
            const QColor color{QLatin1String(name)};
            if (std::abs(found.red() - color.red()) + std::abs(found.green() - color.green()) +
                    std::abs(found.blue() - color.blue()) <
                30)
                return name;
        }
        return found.name();
    }
};

TEST_F(MergedInput, LinksAndBookmarksLeadToThePagesOfTheBook) {
    const auto targets = [this](int number, int before) {
        QStringList all;
        for (const auto& link : page(number)["links"].toArray()) {
            const QJsonValue target = link.toArray()[4];
            all << (target.isDouble() ? QString::number(target.toInt() - before)
                                      : target.toString());
        }
        return all.join(' ').toStdString();
    };
    const int first = 9; // pages of the first document
    merge({Program::sample("links.pdf")});
    const auto alone = targets(1, 0);
    EXPECT_NE(alone, "");
    const auto result = merge({Program::sample("outline.pdf"), Program::sample("links.pdf")});
    ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_EQ(targets(first + 1, first), alone);
    const QJsonArray outline = data("web/book").object()["outline"].toArray();
    ASSERT_EQ(outline.size(), 2);
    EXPECT_EQ(outline[0].toArray()[0], "An outline three deep");
    EXPECT_EQ(outline[0].toArray()[2].toArray().last().toArray()[1], 9);
    EXPECT_EQ(outline[1].toArray()[1], first + 1);
    EXPECT_TRUE(
        TestFiles::read(file("index.html")).contains("<title>An outline three deep</title>"));
}

TEST_F(MergedInput, PicturesStandAsTheyWereTakenAndInTheOrderOfTheirNumbers) {
    QDir().mkpath(path("album"));
    picture("album/Page 10.png", {300, 200}, Qt::blue);
    picture("album/page 9.jpg", {300, 200}, Qt::red);
    picture("album/page 11.jpg", {300, 200}, Qt::green, QImageIOHandler::TransformationRotate90);
    picture("album/page 12.jpg", {300, 200}, Qt::green, QImageIOHandler::TransformationMirror);
    QImage clear(300, 200, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    clear.save(path("album/page 13.webp"));
    const auto result = merge({path("album/")}, {"--type=html"});
    ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_EQ(colour(1, 0.5, 0.2) + colour(1, 0.5, 0.8), "redwhite");
    EXPECT_EQ(colour(2, 0.5, 0.2) + colour(2, 0.5, 0.8), "bluewhite");
    EXPECT_EQ(colour(3, 0.8, 0.5) + colour(3, 0.2, 0.5), "limewhite") << "turned clockwise";
    EXPECT_EQ(colour(4, 0.5, 0.2) + colour(4, 0.5, 0.8), "limewhite");
    EXPECT_EQ(colour(5, 0.5, 0.2), "white") << "what is transparent";
    EXPECT_TRUE(TestFiles::read(file("index.html")).contains("<title>album"));
}

TEST_F(MergedInput, APictureBesideADocumentHasItsPageSize) {
    const QString cover = picture("cover.jpg", {300, 200}, Qt::red);
    const QString tower = picture("tower.jpg", {100, 400}, Qt::blue);
    ASSERT_EQ(merge({cover, tower, Program::sample("text.pdf")}, {"--type=html"}).exitCode, 0);
    EXPECT_EQ(QImage(file("files/page/1.jpg")).size(), QImage(file("files/page/3.jpg")).size());
    EXPECT_EQ(colour(1, 0.5, 0.1), "white") << "above the picture";
    EXPECT_EQ(colour(1, 0.5, 0.45) + colour(1, 0.5, 0.55), "redwhite");
    EXPECT_EQ(colour(2, 0.1, 0.2) + colour(2, 0.5, 0.2) + colour(2, 0.9, 0.2), "whitebluewhite");
}

TEST_F(MergedInput, WhatADocumentForbidsOrHidesStaysSo) {
    PDFBuilder secret;
    const QByteArray hidden = "/OC /Layer BDC 1 0 0 rg 0 0 200 200 re f EMC";
    const int layer = secret.addObject("<< /Type /OCG /Name (Layer) >>");
    const QByteArray reference = PDFBuilder::reference(layer);
    secret.addCatalogEntries("/OCProperties << /OCGs [" + reference + "] /D << /OFF [" + reference +
                             "] >> >>");
    PDFBuilder::Page page;
    page.content = hidden;
    page.resources = "/Properties << /Layer " + reference + " >>";
    secret.addPage(page);
    constexpr qint32 noCopying = -4 & ~16;
    secret.encrypt("", "owner", noCopying);
    secret.write(path("secret.pdf"));
    const auto result = merge({path("secret.pdf"), Program::sample("text.pdf")});
    ASSERT_EQ(result.exitCode, 0) << result.errors.constData();
    EXPECT_TRUE(result.errors.contains("forbids copying its text")) << result.errors.constData();
    EXPECT_FALSE(exists("text.html"));
    EXPECT_EQ(colour(1, 0.1, 0.9), "white");
}

TEST_F(MergedInput, AnErrorNamesTheFileThatItIsAbout) {
    const QString good = Program::sample("text.pdf");
    for (const auto& [name, cause] :
         {std::pair(QString("not-a-pdf.pdf"), "is neither a PDF nor a picture"),
          {QString("damaged-page.pdf"), "is too damaged to be merged with others"},
          {QString("truncated.pdf"), "is damaged beyond repair"},
          {QString("encrypted.pdf"), "is protected by a password"},
          {QString("nowhere.png"), "no such file"}}) {
        const auto result = merge({good, Program::sample(name)});
        EXPECT_NE(result.exitCode, 0);
        EXPECT_TRUE(result.errors.contains(QString("%1: %2").arg(name, cause).toUtf8()))
            << result.errors.constData();
        EXPECT_FALSE(QFileInfo::exists(book()));
    }
}

// With programs that stand in for LibreOffice, which is too large to be installed for tests.
TEST_F(MergedInput, DocumentsOfOfficeProgramsAreConverted) {
    TestFiles::write(path("report.docx"), "words");
    const QByteArray convert = "while [ $1 != --outdir ]; do shift; done; cp '" +
                               Program::sample("links.pdf").toUtf8() + "' $2/report.pdf";
    auto environment = QProcessEnvironment::systemEnvironment();
    struct Case {
        QByteArray script; // empty: not installed
        int exitCode;
        QByteArray error;
    };
    for (const auto& [script, exitCode, error] :
         {Case{"", 1, "report.docx: needs LibreOffice, which is not installed"},
          Case{"exit 0", 65, "report.docx: LibreOffice can't make a PDF of it"},
          Case{convert, 0, ""}}) {
        const QString program = path("bin/soffice");
        environment.insert("PATH", path("bin") + (script.isEmpty() ? "" : ":/usr/bin:/bin"));
        QDir().mkpath(path("bin"));
        if (!script.isEmpty())
            TestFiles::write(program, "#!/bin/sh\n" + script + "\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        const auto result = Program::runOther(
            Program::path(), {"publish", "--quiet", path("report.docx"), book()}, environment);
        EXPECT_EQ(result.exitCode, exitCode);
        EXPECT_TRUE(result.errors.contains(error)) << result.errors.constData();
        EXPECT_EQ(exists("index.html"), exitCode == 0);
        QFile::remove(program);
    }
    EXPECT_GT(page(1)["links"].toArray().size(), 0);
}

} // namespace
