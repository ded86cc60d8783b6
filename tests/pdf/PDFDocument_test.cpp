#include "pdf/DrawablePDF.h"

#include "builder/PDFBuilder.h"
#include "pdf/DrawablePage.h"
#include "pdf/PDFLimits.h"
#include "pdf/VectorEncoder.h"
#include "support/FailureOf.h"
#include "support/PixelCheck.h"
#include "support/TemplateLibrary.h"
#include "util/NSData+CocoaDevUsersAdditions.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PDFDocumentTest : public testing::Test {
protected:
    std::shared_ptr<DrawablePDF> open(const QByteArray& bytes) const {
        TestFiles::write(iFolder.filePath("test.pdf"), bytes);
        return std::make_shared<DrawablePDF>(iFolder.filePath("test.pdf"),
                                             DrawablePDF::Access::stream, iPassword);
    }
    std::shared_ptr<DrawablePDF> open() const { return open(builder.build()); }

    PDFBuilder builder;
    QByteArray iPassword;

private:
    QTemporaryDir iFolder;
};

// Its lower left quarter is red.
const QSizeF pageSize(200, 100);
constexpr char redCorner[] = "1 0 0 rg 0 0 100 50 re f";

QImage draw(const DrawablePDF& document, PageCut cut, double scale = 1) {
    PageBitmap bitmap;
    DrawablePage(document, cut).draw(scale, bitmap);
    return imageOf(bitmap).copy();
}

QByteArray vectors(const DrawablePDF& document, PageCut cut) {
    return NSDataExtension::zlibInflate(VectorEncoder().encode(DrawablePage(document, cut)));
}

} // namespace

TEST_F(PDFDocumentTest, OpensALockedDocumentWithItsPasswordInUTF8) {
    builder.addPage(PDFBuilder::page(pageSize, redCorner));
    for (const auto& [inFile, typed] : {std::pair{"", ""}, {"gr\xFC\xDF\x80", "grüß•"}}) {
        builder.encrypt(inFile, "owner");
        iPassword = typed;
        EXPECT_TRUE(isNear(colourAt(draw(*open(), 0), 0.1, 0.9), Qt::red)) << typed;
    }
}

TEST_F(PDFDocumentTest, SaysWhyPagesCanNotBeFound) {
    builder.addPage(PDFBuilder::page(pageSize, redCorner));
    builder.encrypt("", "owner");
    for (const auto& [sound, damaged, cause] :
         {std::tuple{"/Count 1", "/Count 0", "its pages can't be found (malformed page tree)"},
          {"/Pages 2 ", "/Pages 9 ", "its pages can't be found (object out of range"},
          {"/Standard", "/Unheard!", "is encrypted in an unknown way (unknown encryption"}}) {
        const QByteArray bytes = builder.build().replace(sound, damaged);
        const QString reason = failureOf([&] { open(bytes); }).message.english();
        EXPECT_TRUE(reason.contains(cause)) << reason.toStdString();
    }
}

TEST_F(PDFDocumentTest, LabelsItsPages) {
    const std::pair<QByteArray, QStringList> ranges[] = {
        {"/S /r /St 8", {"viii", "ix", "x"}}, {"/S /R /St 1999", {"MCMXCIX"}},
        {"/S /R /St 1666", {"MDCLXVI"}},      {"/S /r /St 1444", {"mcdxliv"}},
        {"/S /A /St 26", {"Z", "AA", "BB"}},  {"/S /a /P (C-)", {"C-a", "C-b"}},
        {"/P (Cover)", {"Cover", "Cover"}},   {"/S /D /St 5", {"5", "6"}}};
    std::vector<QString> expected;
    for (const auto& [entries, labels] : ranges) {
        builder.setPageLabels(int(expected.size()), entries);
        expected.insert(expected.end(), labels.begin(), labels.end());
    }
    for (std::size_t i = 0; i < expected.size(); ++i)
        builder.addPage(PDFBuilder::page(pageSize));
    EXPECT_EQ(open()->pageLabels(), expected);
}

// The link can't be read. When MuPDF comes to it, it repairs the whole file anew, up to the second
// page: it then knows of no page any more.
TEST_F(PDFDocumentTest, KeepsItsCountOfPagesWhateverIsReadLater) {
    builder.addPage(
        PDFBuilder::page(pageSize, redCorner,
                         {PDFBuilder::link({0, 0, 9, 9}, PDFBuilder::toURL("http://a.invalid/"))}));
    builder.addPage(PDFBuilder::page({77, 77}, redCorner));
    QByteArray bytes = builder.build();
    bytes.replace("obj\n<< /Type /Annot", "obb\n<< /Type /Annot")
        .replace("[0 0 77 77]", "[0(0 77 77]");
    const auto document = open(bytes);
    ASSERT_EQ(document->pageCount(), 2);
    document->annotations(0);
    EXPECT_EQ(document->pageCount(), 2);
    EXPECT_THROW(draw(*document, 1), PlatformException);
}

TEST_F(PDFDocumentTest, DrawsPagesTheWayTheyAreTurned) {
    struct Case {
        int rotate, reported;
        QSizeF size;
        QPointF red; // fractions from the upper left corner
    };
    const std::vector<Case> cases{
        {0, 0, {200, 100}, {0.1, 0.9}},     {90, 90, {100, 200}, {0.1, 0.1}},
        {180, 180, {200, 100}, {0.9, 0.1}}, {270, 270, {100, 200}, {0.9, 0.9}},
        {-90, 270, {100, 200}, {0.9, 0.9}}, {450, 90, {100, 200}, {0.1, 0.1}}};
    for (const Case& each : cases) {
        auto page = PDFBuilder::page(pageSize, redCorner);
        page.rotate = each.rotate;
        builder.addPage(page);
    }
    const auto document = open();
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [rotate, reported, size, red] = cases[i];
        const PDFPage page = document->page(int(i));
        EXPECT_EQ(page.rotation, reported) << rotate;
        EXPECT_EQ(page.displaySize(), size) << rotate;
        const QImage image = draw(*document, int(i));
        EXPECT_EQ(image.size(), size.toSize()) << rotate;
        EXPECT_TRUE(isNear(colourAt(image, red.x(), red.y()), Qt::red)) << rotate;
        EXPECT_TRUE(isNear(colourAt(image, 1 - red.x(), red.y()), Qt::white)) << rotate;
    }
}

TEST_F(PDFDocumentTest, DrawsHalvesOfPagesAsTheyAreDisplayed) {
    auto page = PDFBuilder::page({100, 200}, redCorner);
    page.rotate = 90;
    page.cropBox = QRectF(0, 0, 100, 180);
    builder.addPage(page);
    const auto document = open();
    using Part = PageCut::Part;
    for (const auto& [part, colour] : {std::pair{Part::left, Qt::red}, {Part::right, Qt::white}}) {
        const QImage image = draw(*document, {0, part});
        EXPECT_EQ(image.size(), QSize(90, 100));
        EXPECT_TRUE(isNear(colourAt(image, 0.5, 0.5), colour));
        EXPECT_EQ(vectors(*document, {0, part}).contains("<path"), part == Part::left);
    }
}

TEST_F(PDFDocumentTest, ShowsTheCropBoxWithinTheMediaBox) {
    auto shifted = PDFBuilder::page(pageSize, "0 0 1 rg 50 20 50 30 re f");
    shifted.cropBox = QRectF(50, 20, 50, 30);
    PDFBuilder::Page beyond;
    beyond.mediaBox = QRectF(-10, -10, 100, 100);
    beyond.cropBox = QRectF(0, 0, 500, 500);
    builder.addPage(shifted);
    builder.addPage(beyond);
    builder.setInherited({.rotate = 90});
    const auto document = open();

    EXPECT_EQ(document->page(0).cropBox, QRectF(50, 20, 50, 30));
    EXPECT_EQ(document->page(0).mediaBox, QRectF(0, 0, 200, 100));
    EXPECT_EQ(document->page(1).cropBox, QRectF(0, 0, 90, 90));
    EXPECT_EQ(document->page(0).rotation, 90);
    const QImage image = draw(*document, 0);
    EXPECT_EQ(image.size(), QSize(30, 50));
    EXPECT_TRUE(isNear(colourAt(image, 0.02, 0.02), Qt::blue));
    EXPECT_TRUE(isNear(colourAt(image, 0.97, 0.97), Qt::blue));
}

TEST_F(PDFDocumentTest, DrawsWithoutColourWhatHasNone) {
    const QByteArray grayPixels(3 * 4, char(0x80));
    auto grayButRGB = PDFBuilder::page(pageSize, "200 0 0 100 0 0 cm /I Do");
    grayButRGB.xObjects["I"] = builder.addRGBImage({2, 2}, grayPixels);
    builder.addPage(PDFBuilder::page(pageSize, "0.5 g 0 0 200 100 re f"));
    builder.addPage(grayButRGB);
    builder.addPage(PDFBuilder::page(pageSize, "0.5 0.5 0.51 rg 0 0 200 100 re f"));
    builder.addPage(PDFBuilder::page(pageSize, "0.5 0.4 0.6 rg 0 0 1 1 re f"));
    const auto document = open();
    EXPECT_EQ(draw(*document, 0).format(), QImage::Format_Grayscale8);
    const QImage scan = draw(*document, 1);
    EXPECT_EQ(scan.format(), QImage::Format_Grayscale8);
    EXPECT_TRUE(isNear(colourAt(scan, 0.9, 0.9), QColor(128, 128, 128)));
    EXPECT_EQ(draw(*document, 2).format(), QImage::Format_RGB888);
    EXPECT_EQ(draw(*document, 3).format(), QImage::Format_RGB888);
}

// Pictures in four colours, one a quarter, far larger than they come out.
TEST_F(PDFDocumentTest, ReducesImagesInEveryPlacementAndEncoding) {
    const auto quarters = [](const char* topLeft, const char* topRight, const char* left,
                             const char* right) {
        const auto half = [](const char* first, const char* second) {
            const auto row = QByteArray::fromHex(first).repeated(210) +
                             QByteArray::fromHex(second).repeated(210);
            return row.repeated(210);
        };
        return half(topLeft, topRight) + half(left, right);
    };
    const QSize size(420, 420);
    const QByteArray rgb = quarters("ff0000", "00ff00", "0000ff", "ffffff");
    const QByteArray gray = quarters("00", "50", "a0", "f0");
    const std::vector<int> images{
        builder.addRGBImage(size, rgb), builder.addGrayImage(size, gray),
        builder.addJPEGImage(size, 3, PDFBuilder::encodeJPEG(size, 3, rgb, 95)),
        builder.addJPEGImage(size, 1, PDFBuilder::encodeJPEG(size, 1, gray, 95))};
    struct Placement {
        QByteArray matrix;
        int rotate;
        double x, y; // where the image's upper left quarter comes out
    };
    const std::vector<Placement> placements{{"101.3 0 0 99.6 0 0 cm", 0, 0.25, 0.25},
                                            {"101.3 0 0 99.6 0 0 cm", 90, 0.75, 0.25},
                                            {"-100 0 0 100 100 0 cm", 0, 0.75, 0.25},
                                            {"100 0 0 -100 0 100 cm", 0, 0.25, 0.75},
                                            {"0 100 -100 0 100 0 cm", 0, 0.25, 0.75}};
    for (const int image : images) {
        for (const Placement& placement : placements) {
            auto page = PDFBuilder::page({100, 100}, placement.matrix + " /I Do");
            page.xObjects["I"] = image;
            page.rotate = placement.rotate;
            builder.addPage(page);
        }
    }
    const auto document = open();
    for (std::size_t i = 0; i < images.size() * placements.size(); ++i) {
        const auto& [matrix, rotate, x, y] = placements[i % placements.size()];
        const bool isGray = i / placements.size() % 2 == 1;
        const QImage drawn = draw(*document, int(i));
        EXPECT_TRUE(isNear(colourAt(drawn, x, y), isGray ? Qt::black : Qt::red)) << i;
        EXPECT_TRUE(
            isNear(colourAt(drawn, 1 - x, 1 - y), isGray ? QColor(240, 240, 240) : Qt::white))
            << i;
    }
}

// Blending needs the page as a picture of its own: on white paper the difference to white shows.
TEST_F(PDFDocumentTest, BlendsWithinThePageNotWithThePaper) {
    auto plain = PDFBuilder::page(pageSize, "0 0 1 rg 0 0 200 100 re f");
    plain.extraEntries = "/Group << /S /Transparency /I true /CS /DeviceRGB >>";
    builder.addPage(plain);
    auto blended = PDFBuilder::page(pageSize, "/D gs 1 1 0 rg 0 0 200 100 re f");
    const int state = builder.addObject("<< /BM /Difference >>");
    blended.extraEntries = "/Resources << /ExtGState << /D " + PDFBuilder::reference(state) +
                           " >> >> /Group << /S /Transparency /I true /CS /DeviceRGB >>";
    builder.addPage(blended);
    const int form =
        builder.addStream("/Subtype /Form /BBox [0 0 100 100] /Group << /S /Transparency >>",
                          "1 0 0 rg 0 0 100 100 re f");
    const int half = builder.addObject("<< /ca 0.5 >>");
    plain.content = "q /H gs /X Do Q 0 0 1 rg 100 0 100 100 re f";
    plain.extraEntries += "/Resources << /ExtGState << /H " + PDFBuilder::reference(half) +
                          " >> /XObject << /X " + PDFBuilder::reference(form) + " >> >>";
    builder.addPage(plain);
    const auto document = open();
    EXPECT_TRUE(isNear(colourAt(draw(*document, 0), 0.5, 0.5), Qt::blue));
    const QImage nested = draw(*document, 2);
    EXPECT_TRUE(isNear(colourAt(nested, 0.2, 0.5), QColor(255, 128, 128)));
    EXPECT_TRUE(isNear(colourAt(nested, 0.8, 0.5), Qt::blue))
        << "the group in the page's has ended";
    EXPECT_TRUE(isNear(colourAt(draw(*document, 1), 0.5, 0.5), Qt::yellow));
    // A group that changes nothing keeps no page from being vectors; blending does.
    EXPECT_TRUE(vectors(*document, 0).contains("fill=\"#0000ff\""));
    EXPECT_TRUE(vectors(*document, 1).isEmpty());
}

// Halves of a spread are often the whole of it, each with its own crop box.
TEST_F(PDFDocumentTest, GivesNoVectorsOfWhatLiesOutsideThePage) {
    for (const QByteArray& content :
         {QByteArray("0 0 1 rg 20 20 60 60 re f"), QByteArray("120 20 60 60 re f"),
          QByteArray("BT /F 20 Tf 20 50 Td (in) Tj 110 0 Td (out) Tj ET")}) {
        auto half = PDFBuilder::page(pageSize, content);
        half.cropBox = QRectF(0, 0, 100, 100);
        half.fonts = {{"F", "Helvetica"}};
        builder.addPage(half);
    }
    const auto document = open();
    const QByteArray picture = vectors(*document, 0);
    EXPECT_TRUE(picture.contains("fill=\"#0000ff\""));
    EXPECT_TRUE(picture.contains("fill=\"#fff\"")) << "it lies on paper";
    EXPECT_FALSE(vectors(*document, 1).contains("fill=\"#0000ff\""));
    EXPECT_EQ(vectors(*document, 2).count("\n!"), 2) << "outlines of glyphs";
}

// What the publisher would refuse.
TEST_F(PDFDocumentTest, GivesNoVectorsOfTooManyPictures) {
    constexpr int side = 1500;
    QByteArray noise(side * side, 'x');
    for (unsigned i = 0, state = 1; i < side * side; ++i, state = state * 1664525 + 1013904223)
        noise[i] = char(state >> 24);
    auto page = PDFBuilder::page({500, 500}, QByteArray("500 0 0 500 0 0 cm") +
                                                 QByteArray(" /I Do").repeated(24));
    page.xObjects["I"] = builder.addGrayImage({side, side}, noise);
    builder.addPage(page);
    const auto vectors = VectorEncoder().encode(DrawablePage(*open(), 0));
    EXPECT_TRUE(vectors.isEmpty()) << vectors.size();
}

TEST_F(PDFDocumentTest, DrawsAHugePageSmaller) {
    builder.addPage(PDFBuilder::page({14400, 14400}, redCorner));
    builder.addPage(PDFBuilder::page({30000, 10}, ""));
    const auto document = open();
    PageBitmap bitmap;
    DrawablePage(*document, 0).draw(2, bitmap);
    EXPECT_LE(std::size_t(bitmap.width()) * std::size_t(bitmap.height()),
              PDFLimits::maxBitmapPixels * 101 / 100);
    EXPECT_EQ(bitmap.width(), bitmap.height());
    DrawablePage(*document, 1).draw(2, bitmap);
    EXPECT_EQ(bitmap.width(), PDFLimits::maxBitmapSide);
}

TEST_F(PDFDocumentTest, SaysWhatOfAPageIsDamagedAndDrawsTheRest) {
    const QByteArray pixels(100, 'x');
    const QByteArray packed = qCompress(pixels, 0).mid(4); // as they are
    QByteArray noise(10'000, 'x');
    for (int i = 0; i < noise.size(); ++i)
        noise[i] = char(i * i % 251);
    const QByteArray jpeg = PDFBuilder::encodeJPEG({1000, 10}, 1, noise, 90);
    const qsizetype middle = jpeg.size() / 2;
    const QByteArray dct = "/Width 1000 /Filter /DCTDecode";
    const struct {
        QByteArray entries, data, damage;
    } cases[] = {{"/Width 10", pixels, ""},
                 {"/Width 10 /Filter /FlateDecode", packed.chopped(4) + "sums", ""},
                 {"/Width 10 /Filter /FlateDecode", packed.left(50), "images data"},
                 {"/Width 10", pixels.left(50), "images"},
                 {"/Width 0", pixels, "images"},
                 {"/Width 10 /Filter /JPXDecode", pixels, "images"},
                 {dct, jpeg, ""},
                 {dct, jpeg.chopped(2) + "of a camera\xFF\xD9", ""},
                 {dct, jpeg.left(middle) + "\xFF\xD9", "images"},
                 {dct + " /Decode [1 0]", jpeg.left(middle) + "\xFF\xD9", "images"},
                 {"/Width 10 /Filter /JBIG2Decode", pixels, "images"},
                 {"/Width 10 /Filter /Unknown", pixels, "data"}};
    // Odd, but nothing is missing.
    const QByteArray content = "/No gs 5 5 l S ] BT /No 9 Tf (a) Tj ET what /I Do ";
    PDFBuilder::Page page = PDFBuilder::page(pageSize, content + redCorner);
    for (const auto& [entries, data, damage] : cases) {
        page.xObjects["I"] = builder.addStream("/Subtype /Image /Height 10 /BitsPerComponent 8 "
                                               "/ColorSpace /DeviceGray " +
                                                   entries,
                                               data);
        builder.addPage(page);
        builder.addPage(page);
    }
    const int file = builder.addStream("", "no font");
    page = PDFBuilder::page(pageSize, redCorner + QByteArray(" BT /F 9 Tf (a) Tj ET"));
    page.fontObjects["F"] =
        builder.addObject("<< /Type /Font /Subtype /TrueType /BaseFont /A /FontDescriptor "
                          "<< /FontName /A /FontFile2 " +
                          PDFBuilder::reference(file) + " >> >>");
    builder.addPage(page);
    // Inline images of no width, in the page and in a form, among others that look like them and
    // one that is the corner.
    const QByteArray inlined = "BI/H 9/BPC 8/CS/G/W 0 ID aEI\nEI q (a\\) BI) Tj /BI gs % BI\n"
                               "BI /W 3 /H 2 /BPC 8 /CS /G ID BI ID1 EI Q "
                               "100 0 0 50 0 0 cm BI /W 1 /H 1 /BPC 8 /CS /RGB /F /AHx ID "
                               "FF0000> EI ";
    builder.addPage(PDFBuilder::page(pageSize, inlined));
    page = PDFBuilder::page(pageSize, "/I Do");
    page.xObjects["I"] = builder.addStream("/Subtype /Form /BBox [0 0 200 100]", inlined);
    builder.addPage(page);
    const auto document = open();
    for (int i = 0; i < document->pageCount(); ++i) {
        PageBitmap bitmap;
        const DrawablePage drawn(*document, i);
        drawn.draw(1, bitmap);
        EXPECT_TRUE(isNear(colourAt(imageOf(bitmap), 0.1, 0.9), Qt::red)) << i;
        const auto at = std::size_t(i) / 2;
        const bool isFont = i == document->pageCount() - 3;
        EXPECT_EQ(drawn.damage().words(), isFont                  ? "fonts"
                                          : at < std::size(cases) ? cases[at].damage
                                                                  : "images")
            << i;
    }
}

TEST_F(PDFDocumentTest, DrawsTheFramesThatLinksAskFor) {
    builder.addPage(
        PDFBuilder::page(pageSize, "",
                         {PDFBuilder::link({0, 50, 100, 50}, "/Border [0 0 6 [80 1]] /C [1 0 0]"),
                          PDFBuilder::link({40, 60, 50, 30}, "/Border [0 0 6] /C [0 0 0 1]"),
                          PDFBuilder::link({110, 60, 50, 30}, "/Border [0 0 6] /C [0.5 0]"),
                          PDFBuilder::link({100, 50, 100, 50}, "/Border [0 0 0] /C [1 0 0]"),
                          PDFBuilder::link({100, 0, 100, 50}, "/C [1 0 0]"),
                          PDFBuilder::link({0, 0, 100, 50}, "/BS << /W 6 /S /U >> /C [0 0 1]")}));
    const auto document = open();
    const QImage image = draw(*document, 0);
    for (const auto& [x, y, colour] : {std::tuple{0.01, 0.25, Qt::red},
                                       {0.25, 0.25, Qt::white},
                                       {0.99, 0.25, Qt::white},
                                       {0.99, 0.75, Qt::white},
                                       {0.25, 0.99, Qt::blue},
                                       {0.01, 0.75, Qt::white},
                                       {0.565, 0.25, Qt::white}})
        EXPECT_TRUE(isNear(colourAt(image, x, y), colour)) << x << ' ' << y;
    EXPECT_LT(colourAt(image, 0.215, 0.25).lightness(), 60) << "black in inks";
    EXPECT_TRUE(vectors(*document, 0).contains("stroke-dasharray=\"8000 100\""));
}

TEST_F(PDFDocumentTest, EndsADrawingThatTakesTooLongOrIsStopped) {
    builder.addPage(
        PDFBuilder::page(pageSize, QByteArray("0 0 200 100 re f ").repeated(3'000'000)));
    const auto document = open();
    PageBitmap bitmap;
    const std::atomic<bool> stop{true};
    const auto failureWith = [&](const DrawControl& control) {
        return failureOf([&] { DrawablePage(*document, 0, control).draw(2, bitmap); }).name;
    };
    EXPECT_EQ(failureWith({nullptr, std::chrono::milliseconds(50)}), "PDFPageTimeout");
    EXPECT_EQ(failureWith({&stop}), "PDFPageStopped");
}

TEST_F(PDFDocumentTest, ReadsOutlinesThatRunInCirclesOnce) {
    builder.addPage(PDFBuilder::page(pageSize, ""));
    const int outlines = builder.reserveObject();
    const int first = builder.reserveObject();
    const QByteArray toFirst = PDFBuilder::reference(first);
    const int second = builder.addObject("<< /Title (two) /Next " + toFirst + " >>");
    builder.setObject(outlines, "<< /First " + toFirst + " >>");
    builder.setObject(first, "<< /Title (one) /Next " + PDFBuilder::reference(second) + " /First " +
                                 toFirst + " >>");
    builder.addCatalogEntries("/Outlines " + PDFBuilder::reference(outlines));
    const auto outline = open()->outline();
    ASSERT_EQ(outline.size(), 2U);
    EXPECT_EQ(outline[1].label, "two");
    EXPECT_TRUE(outline[0].children.empty());
}
