#include "Pictures.h"
#include "Samples.h"
#include "ScannedPage.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

constexpr QRectF kPage(0, 0, 595, 842);
constexpr int kBenchmarkPages = 220;

PDFBuilder::Page pictureFilling(const QRectF& rect, int image) {
    PDFBuilder::Page page;
    page.mediaBox = kPage;
    page.xObjects = {{"P", image}};
    page.content = PDFContent::image("P", rect);
    return page;
}

QByteArray images() {
    PDFBuilder pdf;
    const QRectF framed(60, 280, 475, 500);
    const QSize size(760, 800);
    for (unsigned seed = 1; seed <= 3; ++seed)
        pdf.addPage(pictureFilling(
            kPage,
            pdf.addJPEGImage({800, 1132}, 3,
                             PDFBuilder::encodeJPEG({800, 1132}, 3,
                                                    Pictures::landscape({800, 1132}, seed), 88))));
    pdf.addPage(pictureFilling(
        framed,
        pdf.addJPEGImage(size, 1,
                         PDFBuilder::encodeJPEG(size, 1, Pictures::grayLandscape(size, 4), 88))));
    const QSize small(380, 400);
    pdf.addPage(pictureFilling(framed, pdf.addGrayImage(small, Pictures::grayLandscape(small, 5))));
    pdf.addPage(pictureFilling(framed, pdf.addRGBImage(small, Pictures::landscape(small, 6))));
    return pdf.build();
}

QByteArray pictureHeavy() {
    PDFBuilder pdf;
    const QSize size(1240, 1754);
    for (unsigned number = 1; number <= kBenchmarkPages; ++number)
        pdf.addPage(pictureFilling(
            kPage, pdf.addJPEGImage(size, 3,
                                    PDFBuilder::encodeJPEG(
                                        size, 3, Pictures::landscape(size, 100 + number), 85))));
    return pdf.build();
}

QByteArray scanned() {
    PDFBuilder pdf;
    for (unsigned number = 1; number <= kBenchmarkPages; ++number)
        pdf.addPage(pictureFilling(
            kPage, pdf.addJPEGImage(ScannedPage::kSize, 1,
                                    PDFBuilder::encodeJPEG(ScannedPage::kSize, 1,
                                                           ScannedPage::pixels(number), 50))));
    return pdf.build();
}

} // namespace

std::vector<Sample> imageSamples() {
    return {{"images.pdf", images}};
}

std::vector<Sample> benchmarkSamples() {
    return {{"picture-heavy.pdf", pictureHeavy}, {"scanned.pdf", scanned}};
}
