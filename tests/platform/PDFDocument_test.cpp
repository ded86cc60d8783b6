#include "platform/PDFDocument.h"

#include "builder/PDFBuilder.h"
#include "platform/PDFLimits.h"
#include "platform/PlatformException.h"
#include "support/PixelCheck.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PDFDocumentTest : public testing::Test {
protected:
    QString writeBytes(const QByteArray& bytes) {
        const QString path = iFolder.filePath(QStringLiteral("test.pdf"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }

    std::shared_ptr<PDFDocument> open(const PDFBuilder& builder) {
        return PDFDocument::open(writeBytes(builder.build()));
    }

    QString openFailure(const QByteArray& bytes) {
        try {
            PDFDocument::open(writeBytes(bytes));
        } catch (const PlatformException& failure) {
            return failure.reason();
        }
        return QStringLiteral("opened");
    }

    QTemporaryDir iFolder;
};

PDFBuilder::Page pageWith(const QByteArray& content, const QRectF& box = {0, 0, 200, 100}) {
    PDFBuilder::Page page;
    page.mediaBox = box;
    page.content = content;
    return page;
}

// A page with its lower left quarter red.
constexpr char redCorner[] = "1 0 0 rg 0 0 100 50 re f";

QImage draw(const PDFDocument& document, int index, double scale = 1) {
    PageBitmap bitmap;
    document.page(index).draw(scale, bitmap);
    const bool gray = bitmap.components() == 1;
    return QImage(bitmap.data(), bitmap.width(), bitmap.height(), bitmap.stride(),
                  gray ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
        .copy();
}

} // namespace

TEST_F(PDFDocumentTest, SaysWhyAFileCannotBeOpened) {
    PDFBuilder locked;
    locked.addPage(pageWith("0 0 1 1 re f"));
    locked.encrypt("secret", "owner");

    EXPECT_TRUE(openFailure("").endsWith(QStringLiteral("test.pdf: the file is empty")));
    EXPECT_TRUE(openFailure("Dear reader, this is a letter.")
                    .endsWith(QStringLiteral("test.pdf: is not a PDF document")));
    EXPECT_TRUE(openFailure("%PDF-1.4\nnothing follows")
                    .contains(QStringLiteral("test.pdf: is damaged beyond repair")));
    EXPECT_TRUE(openFailure(locked.build())
                    .endsWith(QStringLiteral("test.pdf: is protected by a password")));
    EXPECT_THROW(PDFDocument::open(iFolder.path()), PlatformException);
}

TEST_F(PDFDocumentTest, OpensADocumentLockedWithAnEmptyPassword) {
    PDFBuilder builder;
    builder.addPage(pageWith(redCorner));
    builder.encrypt("", "owner");
    EXPECT_TRUE(isNear(colourAt(draw(*open(builder), 0), 0.1, 0.9), Qt::red));
}

TEST_F(PDFDocumentTest, RepairsADocumentWithoutItsCrossReferences) {
    PDFBuilder builder;
    builder.addPage(pageWith(redCorner));
    QByteArray bytes = builder.build();
    bytes.truncate(bytes.lastIndexOf("xref\n0"));
    EXPECT_EQ(PDFDocument::open(writeBytes(bytes))->pageCount(), 1);
}

// The link can't be read. When the engine comes to it, it looks through the whole file anew, which
// ends at the second page: it then knows of no page any more.
TEST_F(PDFDocumentTest, KeepsItsCountOfPagesWhateverIsReadLater) {
    PDFBuilder pdf;
    PDFBuilder::Page page = pageWith(redCorner);
    page.annotations = {PDFBuilder::link({0, 0, 9, 9}, PDFBuilder::toURL("http://a.invalid/"))};
    pdf.addPage(page);
    pdf.addPage(pageWith(redCorner, {0, 0, 77, 77}));
    QByteArray bytes = pdf.build();
    bytes.replace("obj\n<< /Type /Annot", "obb\n<< /Type /Annot")
        .replace("[0 0 77 77]", "[0(0 77 77]");
    const auto document = PDFDocument::open(writeBytes(bytes));
    ASSERT_EQ(document->pageCount(), 2);
    document->page(0).annotations();
    EXPECT_EQ(document->pageCount(), 2);
    EXPECT_THROW(draw(*document, 1), PlatformException);
}

TEST_F(PDFDocumentTest, DrawsPagesTheWayTheyAreTurned) {
    struct Case {
        int rotate;
        int reported;
        QSizeF size;
        QPointF red; // fractions from the upper left corner
    };
    const std::vector<Case> cases{
        {0, 0, {200, 100}, {0.1, 0.9}},     {90, 90, {100, 200}, {0.1, 0.1}},
        {180, 180, {200, 100}, {0.9, 0.1}}, {270, 270, {100, 200}, {0.9, 0.9}},
        {-90, 270, {100, 200}, {0.9, 0.9}}, {450, 90, {100, 200}, {0.1, 0.1}},
    };
    PDFBuilder builder;
    for (const Case& each : cases) {
        auto page = pageWith(redCorner);
        page.rotate = each.rotate;
        builder.addPage(page);
    }
    const auto document = open(builder);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& each = cases[i];
        const PDFPage page = document->page(int(i));
        EXPECT_EQ(page.rotation(), each.reported) << each.rotate;
        EXPECT_EQ(page.displaySize(), each.size) << each.rotate;
        const QImage image = draw(*document, int(i));
        EXPECT_EQ(image.size(), each.size.toSize()) << each.rotate;
        EXPECT_TRUE(isNear(colourAt(image, each.red.x(), each.red.y()), Qt::red)) << each.rotate;
        EXPECT_TRUE(isNear(colourAt(image, 1 - each.red.x(), each.red.y()), Qt::white))
            << each.rotate;
    }
}

TEST_F(PDFDocumentTest, ShowsTheCropBoxWithinTheMediaBox) {
    auto shifted = pageWith("0 0 1 rg 50 20 50 30 re f", {0, 0, 200, 100});
    shifted.cropBox = QRectF(50, 20, 50, 30);
    auto beyond = pageWith("", {-10, -10, 100, 100});
    beyond.cropBox = QRectF(0, 0, 500, 500);
    PDFBuilder builder;
    builder.addPage(shifted);
    builder.addPage(beyond);
    PDFBuilder::PageAttributes inherited;
    inherited.rotate = 90;
    builder.setInherited(inherited);
    const auto document = open(builder);

    EXPECT_EQ(document->page(0).cropBox(), QRectF(50, 20, 50, 30));
    EXPECT_EQ(document->page(0).mediaBox(), QRectF(0, 0, 200, 100));
    EXPECT_EQ(document->page(1).cropBox(), QRectF(0, 0, 90, 90));
    EXPECT_EQ(document->page(0).rotation(), 90);
    const QImage image = draw(*document, 0);
    EXPECT_EQ(image.size(), QSize(30, 50));
    EXPECT_TRUE(isNear(colourAt(image, 0.02, 0.02), Qt::blue));
    EXPECT_TRUE(isNear(colourAt(image, 0.97, 0.97), Qt::blue));
}

TEST_F(PDFDocumentTest, DrawsWithoutColourWhatHasNone) {
    PDFBuilder builder;
    const QByteArray grayPixels(3 * 4, char(0x80));
    auto grayButRGB = pageWith("200 0 0 100 0 0 cm /I Do");
    grayButRGB.xObjects["I"] = builder.addRGBImage({2, 2}, grayPixels);
    builder.addPage(pageWith("0.5 g 0 0 200 100 re f"));
    builder.addPage(grayButRGB);
    builder.addPage(pageWith("0.5 0.5 0.51 rg 0 0 200 100 re f"));
    builder.addPage(pageWith("0.5 0.4 0.6 rg 0 0 1 1 re f"));
    const auto document = open(builder);
    EXPECT_EQ(draw(*document, 0).format(), QImage::Format_Grayscale8);
    const QImage scan = draw(*document, 1);
    EXPECT_EQ(scan.format(), QImage::Format_Grayscale8);
    EXPECT_TRUE(isNear(colourAt(scan, 0.9, 0.9), QColor(128, 128, 128)));
    EXPECT_EQ(draw(*document, 2).format(), QImage::Format_RGB888);
    EXPECT_EQ(draw(*document, 3).format(), QImage::Format_RGB888);
}

// Pictures in four colours, one a quarter, far larger than they come out.
TEST_F(PDFDocumentTest, ReducesImagesInEveryPlacementAndEncoding) {
    const QSize size(420, 420);
    QByteArray rgb;
    QByteArray gray;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool left = x < size.width() / 2;
            const bool top = y < size.height() / 2;
            const QColor colour =
                top ? (left ? Qt::red : Qt::green) : (left ? Qt::blue : Qt::white);
            rgb += char(colour.red());
            rgb += char(colour.green());
            rgb += char(colour.blue());
            gray += char(top ? (left ? 0 : 80) : (left ? 160 : 240));
        }
    }
    PDFBuilder builder;
    const std::vector<int> images{
        builder.addRGBImage(size, rgb), builder.addGrayImage(size, gray),
        builder.addJPEGImage(size, 3, PDFBuilder::encodeJPEG(size, 3, rgb, 95)),
        builder.addJPEGImage(size, 1, PDFBuilder::encodeJPEG(size, 1, gray, 95))};
    struct Placement {
        QByteArray matrix;
        int rotate;
        double x; // where the image's upper left quarter comes out
        double y;
    };
    const std::vector<Placement> placements{
        {"101.3 0 0 99.6 0 0 cm", 0, 0.25, 0.25}, {"101.3 0 0 99.6 0 0 cm", 90, 0.75, 0.25},
        {"-100 0 0 100 100 0 cm", 0, 0.75, 0.25}, {"100 0 0 -100 0 100 cm", 0, 0.25, 0.75},
        {"0 100 -100 0 100 0 cm", 0, 0.25, 0.75},
    };
    for (const int image : images) {
        for (const Placement& placement : placements) {
            auto page = pageWith(placement.matrix + " /I Do", {0, 0, 100, 100});
            page.xObjects["I"] = image;
            page.rotate = placement.rotate;
            builder.addPage(page);
        }
    }
    const auto document = open(builder);
    for (std::size_t i = 0; i < images.size() * placements.size(); ++i) {
        const Placement& placement = placements[i % placements.size()];
        const bool isGray = i / placements.size() % 2 == 1;
        const QImage drawn = draw(*document, int(i));
        EXPECT_TRUE(isNear(colourAt(drawn, placement.x, placement.y),
                           isGray ? QColor(Qt::black) : QColor(Qt::red)))
            << i;
        EXPECT_TRUE(isNear(colourAt(drawn, 1 - placement.x, 1 - placement.y),
                           isGray ? QColor(240, 240, 240) : QColor(Qt::white)))
            << i;
    }
}

// Blending needs the page as a picture of its own: on white paper the difference to white shows.
TEST_F(PDFDocumentTest, BlendsWithinThePageNotWithThePaper) {
    PDFBuilder builder;
    auto plain = pageWith("0 0 1 rg 0 0 200 100 re f");
    plain.extraEntries = "/Group << /S /Transparency /I true /CS /DeviceRGB >>";
    builder.addPage(plain);
    auto blended = pageWith("/D gs 1 1 0 rg 0 0 200 100 re f");
    const int state = builder.addObject("<< /BM /Difference >>");
    blended.extraEntries = "/Resources << /ExtGState << /D " + PDFBuilder::reference(state) +
                           " >> >> /Group << /S /Transparency /I true /CS /DeviceRGB >>";
    builder.addPage(blended);
    const auto document = open(builder);
    EXPECT_TRUE(isNear(colourAt(draw(*document, 0), 0.5, 0.5), Qt::blue));
    EXPECT_TRUE(isNear(colourAt(draw(*document, 1), 0.5, 0.5), Qt::yellow));
    // A group that changes nothing keeps no page from being vectors; blending does.
    EXPECT_TRUE(document->page(0).vectorPicture().contains("fill=\"#0000ff\""));
    EXPECT_TRUE(document->page(1).vectorPicture().isEmpty());
}

// Halves of a spread are often the whole of it, each with its own crop box.
TEST_F(PDFDocumentTest, GivesNoVectorsOfWhatLiesOutsideThePage) {
    PDFBuilder builder;
    for (const QByteArray& content :
         {QByteArray("0 0 1 rg 20 20 60 60 re f"), QByteArray("120 20 60 60 re f"),
          QByteArray("BT /F 20 Tf 20 50 Td (in) Tj 110 0 Td (out) Tj ET")}) {
        auto half = pageWith(content);
        half.cropBox = QRectF(0, 0, 100, 100);
        half.fonts = {{"F", "Helvetica"}};
        builder.addPage(half);
    }
    const auto document = open(builder);
    const QByteArray picture = document->page(0).vectorPicture();
    EXPECT_TRUE(picture.contains("fill=\"#0000ff\""));
    EXPECT_TRUE(picture.contains("fill=\"#fff\"")) << "it lies on paper";
    EXPECT_TRUE(document->page(1).vectorPicture().isEmpty());
    EXPECT_TRUE(document->page(2).vectorPicture().isEmpty());
}

TEST_F(PDFDocumentTest, DrawsAHugePageSmaller) {
    PDFBuilder builder;
    builder.addPage(pageWith(redCorner, {0, 0, 14400, 14400}));
    builder.addPage(pageWith("", {0, 0, 30000, 10}));
    const auto document = open(builder);
    PageBitmap bitmap;
    document->page(0).draw(2, bitmap);
    EXPECT_LE(std::size_t(bitmap.width()) * std::size_t(bitmap.height()),
              PDFLimits::maxBitmapPixels * 101 / 100);
    EXPECT_EQ(bitmap.width(), bitmap.height());
    document->page(1).draw(2, bitmap);
    EXPECT_EQ(bitmap.width(), PDFLimits::maxBitmapSide);
}

TEST_F(PDFDocumentTest, GivesUpAPageThatNeverEnds) {
    PDFBuilder builder;
    builder.addPage(pageWith(QByteArray("0 0 200 100 re f ").repeated(3'000'000)));
    PageBitmap bitmap;
    DrawControl control;
    control.timeLimit = std::chrono::milliseconds(50);
    try {
        open(builder)->page(0).draw(2, bitmap, control);
        FAIL() << "the page was drawn";
    } catch (const PlatformException& failure) {
        EXPECT_EQ(failure.name(), QStringLiteral("PDFPageTimeout"));
    }
}

TEST_F(PDFDocumentTest, ReadsOutlinesThatRunInCirclesOnce) {
    PDFBuilder builder;
    builder.addPage(pageWith(""));
    const int outlines = builder.reserveObject();
    const int first = builder.reserveObject();
    const int second = builder.reserveObject();
    const auto entry = [](const char* title, const QByteArray& links) {
        return QByteArray("<< /Title (") + title + ") " + links + " >>";
    };
    builder.setObject(outlines, "<< /First " + PDFBuilder::reference(first) + " >>");
    builder.setObject(first, entry("one", "/Next " + PDFBuilder::reference(second) + " /First " +
                                              PDFBuilder::reference(first)));
    builder.setObject(second, entry("two", "/Next " + PDFBuilder::reference(first)));
    builder.addCatalogEntries("/Outlines " + PDFBuilder::reference(outlines));
    const auto outline = open(builder)->outline();
    ASSERT_EQ(outline.size(), 2U);
    EXPECT_EQ(outline[1].label, QStringLiteral("two"));
    EXPECT_TRUE(outline[0].children.empty());
}
