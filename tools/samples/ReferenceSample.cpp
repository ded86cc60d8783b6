#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

PDFBuilder::Page turned(int rotation, const QRectF& cropBox, double userUnit) {
    PDFBuilder::Page page;
    page.rotate = rotation;
    page.cropBox = cropBox;
    page.userUnit = userUnit;
    return page;
}

// A little of all that a web book takes from a document.
QByteArray reference() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral(" Über \"alles\" & <mehr>, mit langem Titel "));
    pdf.setInfo("Author", QStringLiteral(" A. Müller & Söhne "));
    pdf.setInfo("Subject", QStringLiteral(" Was \"darin\" steht "));
    pdf.setInfo("Keywords", QStringLiteral(" eins, <zwei> "));
    pdf.addCatalogEntries("/Lang (de-AT) ");
    pdf.setPageLabels(0, "/S /r /P (x-)");
    pdf.setPageLabels(2, "/S /D /St 9");
    pdf.addNamedDestination("end", pdf.destination(5));
    pdf.setInherited({.mediaBox = QRectF(10, 20, 400, 600), .fonts = {{"R", "Helvetica"}}});

    PDFBuilder::Page first;
    first.content = PDFContent::text("R", 24, {60, 540}, "One & <two>") +
                    PDFContent::text("R", 12, {60, 500}, "second  line") +
                    "BT /R 10 Tf 0 1 -1 0 100 200 Tm (upwards) Tj ET\n"
                    "BT /R 10 Tf 0 -1 1 0 200 300 Tm (downwards) Tj ET\n";
    const auto linkAt = [](double y, const QByteArray& target) {
        return PDFBuilder::link({60, y, 100, 20}, target);
    };
    first.annotations = {
        linkAt(400, PDFBuilder::toURL("https://example.org/?a=1&b=2")),
        linkAt(370, PDFBuilder::toDestination(pdf.destination(2))),
        linkAt(340, PDFBuilder::toName("end")),
        linkAt(310, PDFBuilder::toDestination(pdf.destination(4))),
        linkAt(310, PDFBuilder::toDestination("[5 /Fit]")),
        linkAt(310, PDFBuilder::toDestination("[6 /Fit]")),
        linkAt(310, PDFBuilder::toDestination("[-1 /Fit]")),
        PDFBuilder::annotation("Square", {60, 250, 100, 20}, PDFBuilder::toURL("https://no.link")),
        PDFBuilder::link({-50, 280, 100, 20}, PDFBuilder::toName("end")),
        PDFBuilder::link({900, 280, 100, 20}, PDFBuilder::toName("end"))};
    pdf.addPage(first);
    pdf.addPage({});
    for (const auto& [rotation, unit] : {std::pair{90, 1.0}, {180, 2.0}, {270, 1.0}, {0, 0.5}}) {
        PDFBuilder::Page page = turned(rotation, {40, 50, 200, 300}, unit);
        page.content =
            PDFContent::text("R", 12, {60, 200}, "turned by " + QByteArray::number(rotation));
        page.annotations = {
            PDFBuilder::link({60, 100, 50, 20}, PDFBuilder::toDestination(pdf.destination(0)))};
        pdf.addPage(page);
    }
    const auto to = [&pdf](int page) { return PDFBuilder::toDestination(pdf.destination(page)); };
    pdf.setOutline({{QStringLiteral("Anfang & <Ende>"),
                     to(0),
                     {{QStringLiteral("Ende"), PDFBuilder::toName("end"), {}}}},
                    {QStringLiteral("Fehlt im Buch"), to(4), {}},
                    {QStringLiteral("Ohne Ziel"), {}, {}}});
    return pdf.build();
}

} // namespace

std::vector<Sample> referenceSamples() {
    return {{"reference.pdf", reference}};
}
