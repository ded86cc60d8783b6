#include "pdf/VectorEncoder.h"

#include "builder/PDFBuilder.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "support/PixelCheck.h"
#include "support/TemplateLibrary.h"
#include "util/Base91.h"

#include <QImage>
#include <QTemporaryDir>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr QSize size(320, 240);

// What librsvg shows of the file that the player makes of vectors.
QImage shown(const QByteArray& vectors, const QString& folder) {
    TestFiles::write(folder + "/page.json", R"({"vectors":")" + Base91::encode(vectors) + "\"}");
    const QString command =
        "cd '%1' && node --input-type=module --eval \"import { svgOf } from '%2/web/vectors.js'; "
        "import { readFileSync as read, writeFileSync as write } from 'fs'; "
        "write('page.svg', await svgOf(JSON.parse(read('page.json'))))\" && "
        "rsvg-convert --width=320 --output=page.png page.svg";
    EXPECT_EQ(std::system(command.arg(folder, FOLVERO_PLAYER_DIR).toUtf8().constData()), 0);
    return QImage(folder + "/page.png");
}

} // namespace

TEST(VectorEncoder, ShowsWhatIsDrawn) {
    const std::pair<const char*, QByteArray> contents[] = {
        {"text",
         "1 0 0 rg BT /F 60 Tf 0.7 0.3 -0.3 0.7 30 20 Tm (Mix) Tj 1.5 0 0 1 20 60 Tm (gap) Tj ET"},
        {"moved glyphs", "BT /F 50 Tf 55 TL 5 75 Td [(L) -900 (LI)] TJ (HLI) ' ET"},
        {"stroked text", "0 0.5 0 RG 3 w 1 Tr BT /F 70 Tf 10 30 Td (Oh) Tj ET"},
        {"curves", "0 0 1 rg 10 10 m 150 10 150 110 80 110 c 30 110 10 80 10 10 c f"},
        {"even-odd", "0.2 g 10 10 120 90 re 40 30 60 50 re f*"},
        {"nonzero", "0.2 g 10 10 120 90 re 40 30 60 50 re f"},
        {"lines", "8 w 1 J 1 j 1 0 1 RG 20 20 m 60 100 l 100 20 l S 2 J 2 j 0 J 120 20 m 140 100 l "
                  "150 20 l S"},
        {"dashes", "10 w 1 0.5 0 RG [24 12] 6 d 10 60 m 150 60 l S"},
        {"flat pen", "q 4 0 0 1 0 0 cm 8 w 10 10 m 10 100 l 30 100 l S Q"},
        {"clip",
         "q 40 20 m 120 60 l 40 100 l h W n 0 0.6 0.6 rg 0 0 160 120 re f Q 0 0 20 20 re f"},
        {"even-odd clip", "q 10 10 120 90 re 40 30 60 50 re W* n 0.8 0 0 rg 0 0 160 120 re f Q"},
        {"alpha", "/A gs 0 0 1 rg 10 10 90 90 re f 1 0 0 rg 60 20 90 90 re f"},
        {"nested", "q 0.5 0 0 0.5 10 10 cm q 0 0 200 200 re W n 0.9 0.4 0 rg 20 20 300 150 re f Q "
                   "0 0 1 RG 6 w 20 20 300 150 re S Q"},
        {"gradient", "q 20 10 120 80 re W n /S sh Q 0 0 20 20 re f"},
        {"image", "q 110 30 -30 70 40 10 cm BI /W 2 /H 2 /BPC 8 /CS /RGB /F /AHx ID "
                  "FF0000 00FF00 0000FF 000000> EI Q"},
        {"stencil", "0 0.5 0 rg q 96 0 0 96 20 10 cm BI /W 8 /H 2 /IM true /D [1 0] /F /AHx ID "
                    "F0CC> EI Q"},
        {"soft mask", "q /M gs 1 0 0 rg 10 10 140 100 re f Q 0 0 30 30 re f"},
        {"pattern", "q /Pattern cs /P scn 10 10 130 90 re f Q 0 0 20 20 re f"},
        {"clip to text", "q BT 7 Tr /F 70 Tf 10 30 Td (Oh) Tj ET 0 0 1 rg 0 0 160 60 re f Q "
                         "10 100 m 150 100 l S"},
    };
    PDFBuilder builder;
    const int state = builder.addObject("<< /ca 0.5 /CA 0.5 >>");
    const int shading =
        builder.addObject("<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [20 0 140 0] /Function "
                          "<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >>");
    const int lights = builder.addStream(
        "/Type /XObject /Subtype /Form /BBox [0 0 160 120] /Group << /S /Transparency /CS "
        "/DeviceGray >>",
        "1 g 40 20 80 80 re f");
    const int tile = builder.addStream(
        "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 20 20] /XStep 20 /YStep 20 "
        "/Resources << >>",
        "0 0.6 0 rg 0 0 12 12 re f");
    const auto reference = PDFBuilder::reference;
    for (const auto& [name, content] : contents) {
        auto page = PDFBuilder::page(QSizeF(size) / 2, content);
        page.fonts = {{"F", "Helvetica-Bold"}};
        page.extraEntries = "/Resources << /ExtGState << /A " + reference(state) +
                            " /M << /SMask << /S /Luminosity /G " + reference(lights) +
                            " >> >> >> /Shading << /S " + reference(shading) +
                            " >> /Pattern << /P " + reference(tile) + " >> >>";
        builder.addPage(page);
    }
    const QTemporaryDir folder;
    TestFiles::write(folder.filePath("test.pdf"), builder.build());
    const DrawablePDF document(folder.filePath("test.pdf"));
    VectorEncoder encoder;
    for (int i = 0; i < document.pageCount(); ++i) {
        SCOPED_TRACE(contents[i].first);
        const DrawablePage page(document, i);
        PageBitmap bitmap;
        page.draw(2, bitmap);
        ASSERT_EQ(QSize(bitmap.width(), bitmap.height()), size);
        const QImage drawn = imageOf(bitmap);
        const QImage seen = shown(encoder.encode(page), folder.path());
        ASSERT_EQ(seen.size(), size);
        EXPECT_LT(difference(fromAfar(drawn, size / 4), fromAfar(seen, size / 4)), 32);
        QImage blank(size, QImage::Format_RGB32);
        blank.fill(Qt::white);
        EXPECT_GT(difference(fromAfar(drawn, size / 4), fromAfar(blank, size / 4)), 100);
    }
}
