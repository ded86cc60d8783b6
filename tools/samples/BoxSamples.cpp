#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

const std::map<QByteArray, QByteArray> kFonts = {{"R", "Helvetica"}, {"B", "Helvetica-Bold"}};

// An arrow that points to the top of the page before it is turned.
QByteArray upArrow(const QRectF& box) {
    const double middle = box.center().x();
    const double bottom = box.y() + box.height() * 0.2;
    const double neck = box.y() + box.height() * 0.6;
    const double tip = box.y() + box.height() * 0.8;
    const auto at = [](double x, double y) {
        return QByteArray::number(x) + " " + QByteArray::number(y) + " ";
    };
    return PDFContent::fillColor(QColor(200, 60, 40)) + at(middle - 30, bottom) + "m " +
           at(middle + 30, bottom) + "l " + at(middle + 30, neck) + "l " + at(middle + 80, neck) +
           "l " + at(middle, tip) + "l " + at(middle - 80, neck) + "l " + at(middle - 30, neck) +
           "l f\n" + PDFContent::fillColor(Qt::black);
}

QByteArray rotated() {
    PDFBuilder pdf;
    for (const int rotation : {0, 90, 180, 270, 45, -90, 450}) {
        PDFBuilder::Page page;
        page.mediaBox = QRectF(0, 0, 400, 600);
        page.rotate = rotation;
        page.fonts = kFonts;
        page.content = PDFContent::fillColor(QColor(250, 244, 225)) +
                       PDFContent::fillRect(*page.mediaBox) + upArrow(*page.mediaBox) +
                       PDFContent::text("B", 28, {40, 540}, "This edge is up") +
                       PDFContent::text("R", 18, {40, 40},
                                        "Rotate " + QByteArray::number(rotation) + ", 400 x 600");
        pdf.addPage(page);
    }
    return pdf.build();
}

// Lines every 50 points with their coordinates, far beyond every box used here.
QByteArray grid() {
    QByteArray content = "0.7 0.78 0.9 RG 0.5 w\n";
    for (int at = -300; at <= 900; at += 50) {
        const QByteArray position = QByteArray::number(at);
        content += position + " -300 m " + position + " 900 l S\n" + "-300 " + position +
                   " m 900 " + position + " l S\n";
    }
    content += PDFContent::fillColor(QColor(90, 110, 140));
    for (int y = -300; y <= 900; y += 50)
        for (int x = -300; x <= 900; x += 100)
            content += PDFContent::text("R", 8, QPointF(x + 2, y + 2),
                                        QByteArray::number(x) + "," + QByteArray::number(y));
    return content + PDFContent::fillColor(Qt::black);
}

void addBoxPage(PDFBuilder& pdf, const QByteArray& title, const QRectF& media,
                const std::optional<QRectF>& crop, int rotate = 0) {
    PDFBuilder::Page page;
    page.mediaBox = media;
    page.cropBox = crop;
    page.rotate = rotate;
    page.fonts = kFonts;
    const QRectF shown = crop ? crop->intersected(media) : media;
    page.content = grid() + "0 0 1 RG " + PDFContent::strokeRect(media.adjusted(1, 1, -1, -1), 2);
    if (crop)
        page.content += "1 0 0 RG " + PDFContent::strokeRect(crop->adjusted(3, 3, -3, -3), 2);
    page.content += PDFContent::text("B", 16, shown.center() - QPointF(150, 0), title);
    page.compression = PDFBuilder::Compression::Flate;
    pdf.addPage(page);
}

QByteArray cropped() {
    PDFBuilder pdf;
    const QRectF letter(0, 0, 612, 792);
    addBoxPage(pdf, "Crop box with a shifted origin", letter, QRectF(100, 150, 400, 500));
    addBoxPage(pdf, "Crop box larger than the media box", QRectF(0, 0, 400, 500),
               QRectF(-50, -50, 500, 600));
    addBoxPage(pdf, "Media box with a negative origin", QRectF(-200, -100, 400, 600), {});
    addBoxPage(pdf, "Negative origin, cropped", QRectF(-200, -100, 400, 600),
               QRectF(-150, -50, 330, 400));
    addBoxPage(pdf, "Cropped, then turned by 90", letter, QRectF(100, 150, 400, 500), 90);
    addBoxPage(pdf, "Crop box partly outside", letter, QRectF(300, 400, 600, 600));
    return pdf.build();
}

QByteArray mixedSizes() {
    PDFBuilder pdf;
    const auto add = [&pdf](double width, double height, std::optional<double> unit) {
        PDFBuilder::Page page;
        page.mediaBox = QRectF(0, 0, width, height);
        page.userUnit = unit;
        page.fonts = kFonts;
        page.content =
            PDFContent::strokeRect(page.mediaBox->adjusted(4, 4, -4, -4), 2) +
            PDFContent::text("B", 14, {12, height / 2},
                             QByteArray::number(width) + " x " + QByteArray::number(height) +
                                 (unit ? ", unit " + QByteArray::number(*unit) : QByteArray()));
        pdf.addPage(page);
    };
    add(612, 792, {});
    add(792, 612, {});
    add(595.276, 841.89, {});
    add(200, 200, {});
    add(1684, 1191, {});
    add(150, 900, {});
    add(306, 396, 2.0);
    add(612, 792, {});
    return pdf.build();
}

QByteArray huge() {
    PDFBuilder pdf;
    PDFBuilder::Page poster;
    poster.mediaBox = QRectF(0, 0, 14400, 14400);
    poster.fonts = kFonts;
    poster.content = PDFContent::fillColor(QColor(255, 230, 180)) +
                     PDFContent::fillRect({500, 500, 13400, 13400}) +
                     PDFContent::fillColor(Qt::black) +
                     PDFContent::text("B", 900, {1200, 7000}, "200 x 200 inches");
    pdf.addPage(poster);
    PDFBuilder::Page normal;
    normal.mediaBox = QRectF(0, 0, 612, 792);
    normal.fonts = kFonts;
    normal.content = PDFContent::text("B", 24, {72, 700}, "A page of normal size");
    pdf.addPage(normal);
    return pdf.build();
}

// A cover, two double pages, one of them turned, and a last page.
QByteArray spreads() {
    PDFBuilder pdf;
    const auto half = [](double x, const QColor& color, const QByteArray& words) {
        return PDFContent::fillColor(color) + PDFContent::fillRect({x, 0, 300, 400}) +
               PDFContent::fillColor(Qt::black) + PDFContent::text("R", 24, {x + 40, 320}, words);
    };
    const auto add = [&pdf](const QSizeF& size, int rotation, const QByteArray& content,
                            std::vector<QByteArray> annotations = {}) {
        PDFBuilder::Page page = PDFBuilder::page(size, content, std::move(annotations));
        page.rotate = rotation;
        page.fonts = kFonts;
        pdf.addPage(page);
    };
    const auto to = [&pdf](int page, double left, double top) {
        return PDFBuilder::toDestination(pdf.destination(page, left, top));
    };
    const QColor red(255, 230, 225);
    const QColor blue(225, 235, 255);
    add({300, 400}, 0, half(0, Qt::white, "Cover"),
        {PDFBuilder::link({40, 310, 80, 30}, to(1, 340, 344))});
    add({600, 400}, 0, half(0, red, "Two") + half(300, blue, "Three"),
        {PDFBuilder::link({340, 310, 80, 30}, to(3, 0, 400)),
         PDFBuilder::link({200, 20, 200, 30}, PDFBuilder::toURL("https://www.example.org/"))});
    add({400, 600}, 90, "0 1 -1 0 400 0 cm\n" + half(0, red, "Four") + half(300, blue, "Five"),
        {PDFBuilder::link({60, 40, 30, 80}, to(2, 56, 340))});
    add({300, 400}, 0, half(0, Qt::white, "Six"));
    int first = 0;
    for (const char* label : {"Cover", "2-3", "4-5", "6"})
        pdf.setPageLabels(first++, QByteArray("/P (") + label + ")");
    pdf.setOutline({{QStringLiteral("Two and three"), to(1, 0, 400), {}},
                    {QStringLiteral("Five"), to(2, 56, 340), {}}});
    return pdf.build();
}

} // namespace

std::vector<Sample> boxSamples() {
    return {{"rotated.pdf", rotated},
            {"cropped.pdf", cropped},
            {"mixed-sizes.pdf", mixedSizes},
            {"huge.pdf", huge},
            {"spreads.pdf", spreads}};
}
