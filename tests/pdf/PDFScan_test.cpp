#include "builder/PDFBuilder.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "support/PixelCheck.h"
#include "support/TemplateLibrary.h"

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr QSize size(96, 64);

QImage scan() {
    QImage image(size, QImage::Format_RGB888);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, 48, 16, Qt::black);
    painter.fillRect(64, 16, 32, 48, Qt::black);
    return image;
}

QByteArray jpegOf(const QImage& image) {
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "JPEG", 95);
    return file;
}

// Rows of whole bytes.
QByteArray inkOf(const QImage& image) {
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    QByteArray bits;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); x += 8) {
            int byte = 0;
            for (int i = 0; i < 8; ++i)
                byte = byte << 1 | int(qGray(mono.pixel(x + i, y)) > 0);
            bits += char(byte);
        }
    }
    return bits;
}

enum Kept { nothing, ink, all };

const struct {
    const char* matrix;
    int rotation = 0;
    Kept kept = all;
    const char* before = "";
} cases[] = {{"48 0 0 32 0 0"},
             {"48 0 0 32 0 0", 90},
             {"48 0 0 32 0 0", 180},
             {"48 0 0 32 0 0", 270},
             {"-48 0 0 32 48 0"},
             {"48 0 0 -32 0 32"},
             {"-48 0 0 32 48 0", 90},
             {"48 0 0 -32 0 32", 90},
             {"64 0 0 64 0 -32"},
             {"64 0 0 64 -8 -24", 0, ink}, // not at the edge of a block of the file
             {"40 0 0 32 0 0", 0, nothing},
             {"60 20 -10 40 0 -10", 0, nothing},
             {"48 0 0 32 0 0", 0, nothing, "0 0 9 9 re f"},
             {"48 0 0 32 0 0", 0, nothing, "-99 0 m 199 0 l 0 199 l W n"}};

} // namespace

TEST(PDFScan, IsKeptAsThePageShowsIt) {
    const QByteArray sides = "/Type /XObject /Subtype /Image /Width 96 /Height 64 ";
    PDFBuilder builder;
    const std::pair<Kept, int> images[] = {
        {all, builder.addJPEGImage(size, 3, jpegOf(scan()))},
        {ink,
         builder.addStream(sides + "/BitsPerComponent 1 /ColorSpace /DeviceGray", inkOf(scan()))},
        {ink, builder.addStream(sides + "/BitsPerComponent 1 /ImageMask true", inkOf(scan()))}};
    for (const auto& [kind, image] : images) {
        for (const auto& [matrix, rotation, kept, before] : cases) {
            auto page = PDFBuilder::page(QSizeF(48, 32),
                                         QByteArray(before) + " q " + matrix + " cm /Im Do Q");
            page.xObjects = {{"Im", image}};
            page.rotate = rotation;
            builder.addPage(page);
        }
    }
    const QTemporaryDir folder;
    TestFiles::write(folder.filePath("test.pdf"), builder.build());
    const DrawablePDF document(folder.filePath("test.pdf"));
    for (int i = 0; i < document.pageCount(); ++i) {
        SCOPED_TRACE(i);
        const Kept kind = images[i / int(std::size(cases))].first;
        const Kept kept = cases[i % int(std::size(cases))].kept;
        const DrawablePage page(document, i);
        PageBitmap bitmap;
        const QImage file = QImage::fromData(page.scannedJPEG());
        EXPECT_EQ(!file.isNull(), kind == all && kept == all);
        EXPECT_EQ(page.drawScannedInk(bitmap), kind == ink && kept != nothing);
        if (kept == nothing || (kind == all && kept == ink))
            continue;
        const QImage found = kind == ink ? imageOf(bitmap).copy() : file;
        page.draw(2, bitmap);
        const QSize far = found.size() / 8;
        EXPECT_LT(difference(fromAfar(found, far), fromAfar(imageOf(bitmap), far)), 40);
    }
}
