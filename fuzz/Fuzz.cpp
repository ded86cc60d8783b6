#include "Fuzz.h"

#include "annotations/FlashOutlinePDF.h"
#include "annotations/FlashPagesAnnotationsPDF.h"
#include "base/Log.h"
#include "builder/PDFBuilder.h"
#include "pdf/PDFDocument.h"
#include "picture/Inflater.h"
#include "support/TemplateLibrary.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>
#include <cstdio>
#include <cstdlib>

// Freed memory is overwritten, so that libraries that are built without a sanitizer don't get away
// with reading it.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "max_free_fill_size=4096:quarantine_size_mb=64:allocator_may_return_null=1";
}

extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}

void Fuzz::require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "PROPERTY BROKEN: %s\n", property);
    std::abort();
}

unsigned Fuzz::Input::byte() {
    const QByteArray taken = bytes(1);
    return taken.isEmpty() ? 0 : static_cast<unsigned char>(taken[0]);
}

QByteArray Fuzz::Input::bytes(qsizetype atMost) {
    const QByteArray taken = iLeft.left(atMost);
    iLeft.remove(0, taken.size());
    return taken;
}

QString Fuzz::fileWith(const QByteArray& content) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath("input");
    TestFiles::write(path, content);
    return path;
}

namespace {

// A structure tree for the marks 0 to 2 of the first page. Returns the catalog's entry.
QByteArray addTags(PDFBuilder& pdf) {
    const int root = pdf.reserveObject();
    QByteArray elements;
    for (const char* entries : {"/S /H2 /K [0]", "/S /P /K [1] /ActualText (a)",
                                "/S /Figure /K 2 /Alt (a) /A << /BBox [0 0 50 50] >>"})
        elements += PDFBuilder::reference(
                        pdf.addObject("<< /P " + PDFBuilder::reference(root) + entries + " >>")) +
                    ' ';
    pdf.setObject(root,
                  "<< /K [" + elements + "] /ParentTree << /Nums [0 [" + elements + "]] >> >>");
    return " /StructTreeRoot " + PDFBuilder::reference(root);
}

} // namespace

QByteArray Fuzz::documentWith(const QByteArray& content, const QByteArray& catalogEntries) {
    PDFBuilder pdf;
    const QByteArray colours = QByteArray("\xff\x80\x00", 3).repeated(64);
    static const QByteArray jpeg = PDFBuilder::encodeJPEG({8, 8}, 3, colours, 50);
    const QByteArray image = "/Type /XObject /Subtype /Image /Width 8 /Height 8 ";
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 100, 100);
    page.content = content;
    page.fonts = {{"F", "Helvetica"}, {"G", "Symbol"}};
    const int mask = pdf.addStream(image + "/BitsPerComponent 1 /ImageMask true",
                                   QByteArray("\xa0\x50").repeated(4));
    page.xObjects = {{"I", pdf.addGrayImage({8, 8}, QByteArray(64, '\x55'))},
                     {"J", pdf.addJPEGImage({8, 8}, 3, jpeg)},
                     {"M", mask},
                     {"N", pdf.addStream(image +
                                             "/BitsPerComponent 8 /ColorSpace [/Indexed /DeviceRGB "
                                             "1 <ff000000ff00>] /Mask " +
                                             PDFBuilder::reference(mask),
                                         QByteArray(64, '\1'))},
                     {"R", pdf.addRGBImage({8, 8}, colours)},
                     {"X", pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 80 80] "
                                         "/Group << /S /Transparency /I true /K true >>",
                                         "10 10 60 60 re f")}};
    page.resources = "/ExtGState << /E << /BM /Multiply /ca 0.5 >> /A << /ca 0.5 /CA 0.2 >> >> "
                     "/Shading << /S << /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 100 0] "
                     "/Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> "
                     ">> >>";
    page.extraEntries = "/StructParents 0";
    pdf.addPage(page);
    for (int more = 0; more < 2; ++more)
        pdf.addPage(PDFBuilder::page({100, 100}));
    pdf.addCatalogEntries(catalogEntries + addTags(pdf));
    return pdf.build();
}

namespace {

constexpr std::size_t complaintKinds = 4096;
__attribute__((section("__libfuzzer_extra_counters"))) std::uint8_t complaints[complaintKinds];

void countComplaint(const Log::Record& record) {
    if (record.logger != "PDFEngine")
        return;
    std::uint32_t kind = 2166136261U;
    for (const QChar letter : record.text.left(40)) {
        if (!letter.isLetter() && letter != u' ')
            break;
        kind = (kind ^ letter.unicode()) * 16777619U;
    }
    complaints[kind % complaintKinds] = 1;
}

void checkElement(const QXmlStreamReader& element) {
    Fuzz::require(QStringList({"svg", "g", "defs", "clipPath", "path", "rect", "use", "image"})
                      .contains(element.name()),
                  "only what draws");
    for (const QXmlStreamAttribute& attribute : element.attributes()) {
        const auto value = attribute.value();
        const bool isPicture = element.name() == u"image" && attribute.name() == u"href" &&
                               QRegularExpression("^data:image/(png|jpeg);base64,[A-Za-z0-9+/=]*$")
                                   .match(value.toString())
                                   .hasMatch();
        Fuzz::require(!attribute.name().startsWith(u"on") && attribute.name() != u"style",
                      "no handlers");
        Fuzz::require(isPicture || !value.contains(QRegularExpression("[:/\\\\]|url\\((?!#)")),
                      "no addresses outside");
    }
}

} // namespace

void Fuzz::countComplaints() {
    Log::setWatcher(countComplaint);
}

void Fuzz::importLinks(const std::shared_ptr<PDFDocument>& document, int pages) {
    FlashOutlinePDF outline;
    outline.loadOutlineFromPDF(document);
    outline.outlineAsXMLNode();
    FlashPagesAnnotationsPDF links;
    links.loadLinksFromPDF(document, QString("1-%1").arg(pages));
    const auto root = links.pagesAnnotationsNode();
    for (const auto& fraction : root.select_nodes("pageAnnos/anno/location/@*"))
        require(std::isfinite(fraction.attribute().as_double(NAN)), "a link lies somewhere");
}

bool Fuzz::isDrawing(const QByteArray& vectors) {
    // The player makes paths of the lines of glyphs.
    static const QRegularExpression glyphs("\n![^\n]+");
    const std::string text = Inflater().zlib(vectors, 1 << 28);
    QXmlStreamReader reader(QString::fromStdString(text).remove(glyphs));
    while (!reader.atEnd()) {
        const auto kind = reader.readNext();
        require(kind != QXmlStreamReader::DTD && kind != QXmlStreamReader::ProcessingInstruction &&
                    kind != QXmlStreamReader::EntityReference,
                "nothing but elements and text");
        if (kind == QXmlStreamReader::StartElement)
            checkElement(reader);
    }
    return !reader.hasError();
}
