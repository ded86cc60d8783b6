#include "webbook/reading/Figures.h"

#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "support/TemplateLibrary.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr QSizeF pageSize(600, 800);

// A line of words whose baseline is so far from the top.
QByteArray drawnLine(double x, double y, const QByteArray& words, double size = 10) {
    return PDFContent::text("F", size, {x, pageSize.height() - y}, words);
}

QByteArray paragraph(double y, double size = 10) {
    QByteArray lines;
    for (int i = 0; i < 4; ++i)
        lines += drawnLine(50, y + 12 * i, "every line of a paragraph has a good many words", size);
    return lines;
}

QByteArray rect(const char* paint, double x, double y, double width, double height) {
    return QByteArray::number(x) + ' ' + QByteArray::number(pageSize.height() - y - height) + ' ' +
           QByteArray::number(width) + ' ' + QByteArray::number(height) + " re " + paint + '\n';
}

// From (100, 200) to (300, 300), from the top left, of curves and diagonals.
const QByteArray drawing = "100 500 m 150 600 250 600 300 500 c S 100 500 m 200 600 l S "
                           "200 600 m 300 500 l S\n";

QByteArray table() {
    QByteArray content;
    for (int row = 0; row < 5; ++row) {
        content += rect("f", 100, 200 + 15 * row, 200, 1);
        for (int cell = 0; cell < 3; ++cell)
            content += drawnLine(105 + 66 * cell, 211 + 15 * row, "some words");
    }
    return content + rect("f", 100, 200, 1, 60) + rect("f", 300, 200, 1, 60);
}

QByteArray staff() {
    QByteArray content;
    for (int rule = 0; rule < 5; ++rule)
        content += rect("f", 100, 200 + 7 * rule, 400, 0.5);
    return content;
}

QByteArray image(const char* box) {
    return QByteArray("q ") + box + " cm /I Do Q\n";
}

// Left, top, right and bottom of what is found.
QString figuresOf(const QByteArray& content) {
    PDFBuilder builder;
    PDFBuilder::Page page = PDFBuilder::page(pageSize, content);
    page.fonts["F"] = "Helvetica";
    page.xObjects["I"] = builder.addGrayImage({1, 1}, QByteArray(1, '\x40'));
    builder.addPage(page);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.pdf");
    TestFiles::write(path, builder.build());
    const DrawablePDF document(path);
    const DrawablePage drawn(document, {0}, {}, DrawablePage::Content::picturesAndText);
    QStringList texts;
    for (const auto& figure : Figures::of({drawn.text(), drawn.marks()}, pageSize).figures) {
        const QRect box = figure.box.toAlignedRect();
        texts << QString("%1 %2 %3 %4%5")
                     .arg(box.left())
                     .arg(box.top())
                     .arg(box.left() + box.width())
                     .arg(box.top() + box.height())
                     .arg(figure.hasImages ? " image" : "");
    }
    return texts.join(", ");
}

} // namespace

TEST(Figures, AreImagesAndDrawingsButNotWhatTextStandsOn) {
    const QByteArray text = paragraph(100) + paragraph(600);
    const QByteArray caption = drawnLine(150, 325, "Figure 1: A hill");
    const QByteArray cell = rect("S", 100, 200, 90, 30) + drawnLine(110, 220, "a cell");
    const struct {
        const char* what;
        QByteArray content;
        const char* found;
    } cases[] = {
        {"a drawing", text + drawing, "99 199 301 301"},
        {"one with labels, above its caption",
         text + drawing + drawnLine(180, 311, "time") + drawnLine(80, 250, "cm") + caption,
         "79 199 301 315"},
        {"parts of one", text + drawing + "q 1 0 0 1 220 0 cm " + drawing + "Q", "99 199 521 301"},
        {"two with text between",
         text + drawing + drawnLine(50, 330, "and these are the words between") +
             "q 1 0 0 1 0 -140 cm " + drawing + "Q",
         "99 199 301 301, 99 339 301 441"},
        {"a table", text + table(), ""},
        {"a table with the caption of a figure",
         text + cell + drawnLine(100, 245, "Figure 2: A cell"), "99 199 191 231"},
        {"a box around text", rect("S", 40, 80, 300, 80) + text, ""},
        {"a page's colour", "0.9 g " + rect("f", 0, 0, 600, 800) + "0 g " + text, ""},
        {"white on white",
         text + "1 g " + rect("f", 100, 200, 90, 90) + rect("f", 190, 200, 90, 80) +
             rect("f", 280, 200, 90, 70) + "0 g ",
         ""},
        {"lines under headings", text + rect("f", 50, 150, 500, 0.5), ""},
        {"music", text + staff(), "99 199 501 229"},
        {"an image", text + image("200 0 0 100 100 500"), "99 199 301 301 image"},
        {"what a clip leaves of it",
         text + "q 100 500 50 100 re W n " + image("200 0 0 100 100 500") + 'Q',
         "99 199 151 301 image"},
        {"a sign in a line", text + image("12 0 0 12 300 698"), ""},
        {"a scan with text", image("600 0 0 800 0 0") + text, ""},
        {"a page that is a picture", image("600 0 0 800 0 0"), "0 0 600 800 image"},
    };
    for (const auto& [what, content, found] : cases)
        EXPECT_EQ(figuresOf(content).toStdString(), found) << what;
}

TEST(Figures, HaveTheAlternativeTextsOfTheirPlaces) {
    const PDFMark photo{QRectF(100, 100, 200, 100), PDFMark::Kind::image};
    const PDFPageText text{{},
                           {},
                           {{QRectF(90, 90, 400, 300), "A hill"},
                            {QRectF(120, 110, 20, 20), "with a tree"},
                            {QRectF(290, 190, 300, 300), "elsewhere"}}};
    const auto found = Figures::of({text, {photo}}, pageSize).figures;
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].alternative, "A hill; with a tree");
}

TEST(Figures, AreWholeWithMoreMarksThanAreKept) {
    QByteArray content = paragraph(50);
    constexpr int count = 5000;
    for (int i = 0; i < count; ++i) {
        const int place = i * 1777 % count; // so that the next one is far away
        content += "q 1 0 0 1 " + QByteArray::number(100 + place % 100 * 3) + ' ' +
                   QByteArray::number(200 + place / 100 * 8) + " cm 0 0 m 3 0 l 0 8 l f Q\n";
    }
    EXPECT_EQ(figuresOf(content), "99 199 401 601");
}
