#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "builder/PDFDamage.h"
#include "fuzz/Seeds.h"

namespace {

PDFBuilder::Page textPage(const QByteArray& words) {
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 200, 300);
    page.fonts = {{"F", "Times-Roman"}};
    page.content = PDFContent::text("F", 20, {20, 250}, words);
    return page;
}

QByteArray plain() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("Plain"));
    pdf.addPage(textPage("One"));
    pdf.addPage(textPage("Two"));
    return pdf.build();
}

QByteArray boxes() {
    PDFBuilder pdf;
    PDFBuilder::Page page;
    page.cropBox = QRectF(10, 20, 90, 80);
    page.userUnit = 2.0;
    page.content = PDFContent::fillColor(Qt::red) + PDFContent::fillRect({0, 0, 50, 50}) +
                   PDFContent::strokeRect({5, 5, 80, 60}, 2);
    pdf.addPage(page);
    PDFBuilder::PageAttributes inherited;
    inherited.mediaBox = QRectF(-10, -10, 120, 200);
    inherited.rotate = 90;
    pdf.setInherited(inherited);
    return pdf.build();
}

QByteArray links() {
    PDFBuilder pdf;
    PDFBuilder::Page page = textPage("Links");
    page.annotations = {
        PDFBuilder::link({10, 10, 30, 20}, PDFBuilder::toURL("http://example.invalid/")),
        PDFBuilder::link({10, 40, 30, 20}, PDFBuilder::toDestination(pdf.destination(1))),
        PDFBuilder::link({10, 70, 30, 20}, PDFBuilder::toName("there")),
        PDFBuilder::link({10, 90, 30, 20}, PDFBuilder::toOldName("before")),
        PDFBuilder::annotation("Square", {60, 60, 30, 30}, "/C [1 0 0] /BS << /W 2 >>"),
        PDFBuilder::annotation("Text", {60, 10, 20, 20})};
    pdf.addPage(page);
    pdf.addPage(textPage("Target"));
    pdf.addNamedDestination("there", pdf.destination(1, 20, 250));
    pdf.addOldNamedDestination("before", pdf.destination(0));
    return pdf.build();
}

QByteArray outline() {
    PDFBuilder pdf;
    pdf.addPage(textPage("Chapter"));
    pdf.addPage(textPage("Section"));
    const auto to = [&pdf](int page) { return PDFBuilder::toDestination(pdf.destination(page)); };
    pdf.setOutline({{QStringLiteral("Chapter"), to(0), {{QStringLiteral("Section"), to(1)}}},
                    {QStringLiteral("Elsewhere"), PDFBuilder::toURL("http://example.invalid/")},
                    {QStringLiteral("Nowhere")}});
    pdf.setPageLabels(0, "/S /r");
    return pdf.build();
}

struct Placed {
    QByteArray name;
    int image; // number of its object
    QRectF rect;
};

// Adds one square page with these images, and finishes the document.
QByteArray withImages(PDFBuilder& pdf, double side, const std::vector<Placed>& images) {
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, side, side);
    for (const Placed& placed : images) {
        page.xObjects[placed.name] = placed.image;
        page.content += PDFContent::image(placed.name, placed.rect);
    }
    pdf.addPage(page);
    return pdf.build();
}

QByteArray images() {
    PDFBuilder pdf;
    const QByteArray gray(16 * 16, '\x55');
    const QByteArray colours = QByteArray("\xff\x80\x00", 3).repeated(16 * 16);
    const int inGray = pdf.addGrayImage({16, 16}, gray);
    const int inColour = pdf.addRGBImage({16, 16}, colours);
    const int asJPEG =
        pdf.addJPEGImage({16, 16}, 3, PDFBuilder::encodeJPEG({16, 16}, 3, colours, 50));
    return withImages(pdf, 60,
                      {{"G", inGray, {0, 0, 8, 8}},
                       {"C", inColour, {20, 0, 8, 8}},
                       {"J", asJPEG, {0, 20, 8, 8}},
                       {"J", asJPEG, {30, 30, 30, 30}}});
}

// An image of one component in a colour space of its own, and a mask.
QByteArray indexedImage() {
    PDFBuilder pdf;
    const int mask = pdf.addStream("/Type /XObject /Subtype /Image /Width 4 /Height 4 "
                                   "/BitsPerComponent 1 /ImageMask true",
                                   QByteArray("\xa0\x50\xa0\x50", 4));
    const int indexed =
        pdf.addStream("/Type /XObject /Subtype /Image /Width 8 /Height 8 /BitsPerComponent 8 "
                      "/ColorSpace [/Indexed /DeviceRGB 1 <ff000000ff00>] /Mask " +
                          PDFBuilder::reference(mask),
                      QByteArray(64, '\1'));
    return withImages(pdf, 40, {{"I", indexed, {0, 0, 4, 4}}, {"M", mask, {20, 20, 10, 10}}});
}

// A form in a group that blends, and a shading.
QByteArray transparency() {
    PDFBuilder pdf;
    const int form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 50 50] "
                                   "/Group << /S /Transparency /I true >>",
                                   PDFContent::fillRect({0, 0, 40, 40}));
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 100, 100);
    page.extraEntries = "/Group << /S /Transparency /CS /DeviceRGB >> /Resources << "
                        "/ExtGState << /E << /BM /Multiply /ca 0.5 >> >> /Shading << /S << "
                        "/ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 100 0] /Function << "
                        "/FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >> "
                        "/XObject << /X " +
                        PDFBuilder::reference(form) + " >> >>";
    page.content = "/S sh q /E gs 1 0 0 rg /X Do Q ";
    pdf.addPage(page);
    return pdf.build();
}

QByteArray compressed() {
    PDFBuilder pdf;
    PDFBuilder::Page page = textPage("Squeezed");
    page.compression = PDFBuilder::Compression::Flate;
    pdf.addPage(page);
    return pdf.build();
}

QByteArray locked(const QByteArray& password) {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("Locked"));
    pdf.addPage(textPage("Locked"));
    pdf.encrypt(password, "owner");
    return pdf.build();
}

QByteArray missingPage() {
    PDFBuilder pdf;
    pdf.addPage(textPage("Here"));
    pdf.addMissingPage();
    return pdf.build();
}

} // namespace

SeedSet documentSeeds() {
    return {"PDFImport",
            {plain(), boxes(), links(), outline(), images(), indexedImage(), transparency(),
             compressed(), locked(""), locked("user"), missingPage(),
             PDFDamage::withWrongXref(links()), PDFDamage::withoutTrailer(outline()),
             PDFDamage::truncated(images(), 0.6), "%PDF-1.4\n"}};
}
