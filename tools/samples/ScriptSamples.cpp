#include "DrawnPages.h"
#include "Samples.h"

namespace {

constexpr QSizeF kPageSize(420, 595);

// A font that the file only names; the reader brings its own for the character collection.
struct CollectionFont {
    const char* title;
    const char* name;
    const char* ordering;
    const char* cmap;
    QStringList lines;
};

const CollectionFont kCollections[] = {
    {"Simplified Chinese",
     "STSong-Light",
     "GB1",
     "UniGB-UCS2-H",
     {QStringLiteral("翻页书的每一页"), QStringLiteral("清晨的光落在河面上"),
      QStringLiteral("纸、墨与安静的窗")}},
    {"Traditional Chinese",
     "MSung-Light",
     "CNS1",
     "UniCNS-UCS2-H",
     {QStringLiteral("翻頁書的每一頁"), QStringLiteral("清晨的光落在河面上"),
      QStringLiteral("紙、墨與安靜的窗")}},
    {"Japanese",
     "HeiseiMin-W3",
     "Japan1",
     "UniJIS-UCS2-H",
     {QStringLiteral("ページをめくる本"), QStringLiteral("朝の光が川に落ちる"),
      QStringLiteral("カタカナとひらがな")}},
    {"Korean",
     "HYSMyeongJo-Medium",
     "Korea1",
     "UniKS-UCS2-H",
     {QStringLiteral("넘기는 책의 모든 쪽"), QStringLiteral("아침 빛이 강에 내린다"),
      QStringLiteral("종이와 잉크")}},
};

int addCollectionFont(PDFBuilder& pdf, const CollectionFont& font) {
    const QByteArray name = font.name;
    const int descriptor = pdf.addObject(
        "<< /Type /FontDescriptor /FontName /" + name +
        " /Flags 6 /FontBBox [-25 -254 1000 880] /ItalicAngle 0 /Ascent 880 /Descent -120"
        " /CapHeight 880 /StemV 93 >>");
    const int descendant = pdf.addObject(
        "<< /Type /Font /Subtype /CIDFontType0 /BaseFont /" + name +
        " /CIDSystemInfo << /Registry (Adobe) /Ordering (" + font.ordering +
        ") /Supplement 0 >> /DW 1000 /FontDescriptor " + PDFBuilder::reference(descriptor) + " >>");
    return pdf.addObject("<< /Type /Font /Subtype /Type0 /BaseFont /" + name + " /Encoding /" +
                         font.cmap + " /DescendantFonts [" + PDFBuilder::reference(descendant) +
                         "] >>");
}

QByteArray bigEndian(const QString& text) {
    QByteArray bytes;
    for (const QChar c : text) {
        bytes += static_cast<char>(c.unicode() >> 8);
        bytes += static_cast<char>(c.unicode() & 0xFF);
    }
    return "<" + bytes.toHex() + ">";
}

void addCollectionPage(PDFBuilder& pdf, const CollectionFont& font) {
    PDFBuilder::Page page;
    page.mediaBox = QRectF(QPointF(), kPageSize);
    page.fonts = {{"L", "Helvetica"}};
    page.fontObjects = {{"C", addCollectionFont(pdf, font)}};
    page.content =
        "BT /L 12 Tf 50 530 Td (" + QByteArray(font.title) + ", font not embedded) Tj ET\n";
    double y = 460;
    for (const QString& line : font.lines) {
        page.content +=
            "BT /C 28 Tf 50 " + QByteArray::number(y) + " Td " + bigEndian(line) + " Tj ET\n";
        y -= 60;
    }
    pdf.addPage(page);
}

void drawLines(QPainter& painter, const QString& family, const QString& title,
               const QStringList& lines) {
    const QRectF area(50, 50, 320, 480);
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
    painter.drawText(area, Qt::AlignLeft, title);
    painter.setFont(QFont(family, 22));
    double y = 110;
    for (const QString& line : lines) {
        // Alignment by the text's own direction: right-to-left lines begin at the right.
        const bool rightToLeft = line.isRightToLeft();
        painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(QRectF(area.x(), y, area.width(), 40), Qt::AlignLeading, line);
        y += 54;
    }
}

QByteArray eastAsianAndRightToLeft() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("漢字 עברית العربية"));
    for (const CollectionFont& font : kCollections)
        addCollectionPage(pdf, font);
    DrawnPages pages(pdf, kPageSize);
    const QString dejaVu = QStringLiteral("DejaVu Sans");
    drawLines(pages.painter(), dejaVu, QStringLiteral("Hebrew, font embedded"),
              {QStringLiteral("ספר שאפשר לדפדף בו"), QStringLiteral("אור הבוקר על הנהר"),
               QStringLiteral("עמוד 12 מתוך 48"), QStringLiteral("נייר, דיו ו-PDF")});
    pages.nextPage();
    drawLines(pages.painter(), dejaVu, QStringLiteral("Arabic, font embedded"),
              {QStringLiteral("كتاب تقلب صفحاته"), QStringLiteral("ضوء الصباح على النهر"),
               QStringLiteral("الصفحة 12 من 48"), QStringLiteral("ورق وحبر و PDF")});
    pages.finish();
    return pdf.build();
}

} // namespace

std::vector<Sample> scriptSamples() {
    return {{"cjk-rtl.pdf", eastAsianAndRightToLeft}};
}
