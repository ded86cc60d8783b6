#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "builder/PDFDamage.h"

namespace {

PDFBuilder::Page plainPage(const QByteArray& title) {
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 420, 595);
    page.fonts = {{"B", "Helvetica-Bold"}};
    page.content = PDFContent::text("B", 24, {50, 520}, title);
    return page;
}

PDFBuilder plainDocument(int pages) {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("A plain document"));
    for (int number = 1; number <= pages; ++number)
        pdf.addPage(plainPage("Page " + QByteArray::number(number)));
    return pdf;
}

QByteArray encrypted(const QByteArray& userPassword) {
    PDFBuilder pdf = plainDocument(3);
    pdf.encrypt(userPassword, "owner");
    return pdf.build();
}

// The page tree promises a third page, but in its place stands a branch without leaves.
QByteArray damagedPage() {
    PDFBuilder pdf = plainDocument(2);
    const int third = pdf.addMissingPage();
    pdf.setObject(pdf.pageObject(third), "<< /Type /Pages /Count 1 /Kids [] >>");
    pdf.addPage(plainPage("Page 4"));
    pdf.addPage(plainPage("Page 5"));
    return pdf.build();
}

// Each form draws the next one ten times, twelve deep: a small file that no reader ever finishes.
QByteArray endlessPage() {
    PDFBuilder pdf;
    const QByteArray formEntries = "/Type /XObject /Subtype /Form /BBox [0 0 420 595] ";
    int form = pdf.addStream(formEntries, PDFContent::fillRect({100, 100, 200, 300}));
    for (int depth = 0; depth < 12; ++depth)
        form = pdf.addStream(formEntries + "/Resources << /XObject << /N " +
                                 PDFBuilder::reference(form) + " >> >>",
                             PDFContent::form("N").repeated(10));
    pdf.addPage(plainPage("The next page never ends"));
    PDFBuilder::Page endless = plainPage("Page 2");
    endless.xObjects = {{"N", form}};
    endless.content += PDFContent::form("N");
    pdf.addPage(endless);
    pdf.addPage(plainPage("The page before never ends"));
    return pdf.build();
}

} // namespace

std::vector<Sample> brokenSamples() {
    return {{"encrypted-open.pdf", [] { return encrypted({}); }},
            {"encrypted.pdf", [] { return encrypted("secret"); }},
            {"damaged-xref.pdf", [] { return PDFDamage::withWrongXref(plainDocument(5).build()); }},
            {"truncated.pdf", [] { return PDFDamage::truncated(plainDocument(20).build(), 0.5); }},
            {"damaged-page.pdf", damagedPage},
            {"zero-pages.pdf", [] { return plainDocument(0).build(); }},
            {"loop.pdf", endlessPage},
            {"not-a-pdf.pdf", [] { return QByteArray("This is a letter, not a PDF.\n"); }},
            {"empty.pdf", [] { return QByteArray(); }}};
}
