#include "Prose.h"
#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

constexpr QRectF kLetter(0, 0, 612, 792);

QByteArray manyLines() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("Thirty pages of text"));
    for (int number = 1; number <= 30; ++number) {
        PDFBuilder::Page page;
        page.mediaBox = kLetter;
        page.fonts = {{"R", "Times-Roman"}, {"B", "Times-Bold"}, {"I", "Times-Italic"}};
        page.compression = PDFBuilder::Compression::Flate;
        Prose prose(static_cast<unsigned>(number));
        page.content =
            PDFContent::text("B", 18, {72, 700}, "Chapter " + QByteArray::number(number));
        double y = 668;
        for (const QByteArray& line : prose.lines(42, 88)) {
            page.content += PDFContent::text(y > 640 ? "I" : "R", 11, {72, y}, line);
            y -= 14;
        }
        page.content += PDFContent::text("R", 9, {300, 40}, QByteArray::number(number));
        pdf.addPage(page);
    }
    return pdf.build();
}

// The first pages are the same however many there are, so that two such files can be compared.
QByteArray shortPages(int count) {
    PDFBuilder pdf;
    pdf.setInherited({.mediaBox = QRectF(0, 0, 420, 595),
                      .fonts = {{"R", "Helvetica"}, {"B", "Helvetica-Bold"}}});
    for (int number = 1; number <= count; ++number) {
        PDFBuilder::Page page;
        Prose prose(static_cast<unsigned>(7000 + number));
        page.content = PDFContent::text("B", 24, {50, 520}, "Page " + QByteArray::number(number));
        double y = 480;
        for (const QByteArray& line : prose.lines(12, 52)) {
            page.content += PDFContent::text("R", 12, {50, y}, line);
            y -= 18;
        }
        pdf.addPage(page);
    }
    return pdf.build();
}

} // namespace

std::vector<Sample> textSamples() {
    return {{"text.pdf", manyLines},
            {"thousand.pdf", [] { return shortPages(1000); }},
            {"fifty.pdf", [] { return shortPages(50); }}};
}
