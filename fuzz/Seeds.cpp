#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "pdf/PDFSerialization.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QHashFunctions>
#include <QStringEncoder>

namespace {

using Seeds = std::vector<QByteArray>;

QByteArray inUTF16(const QString& text) {
    return QStringEncoder(QStringConverter::Utf16, QStringConverter::Flag::WriteBom)(text);
}

Seeds textTemplates() {
    return {"<title>${title}</title>",
            QByteArrayLiteral("a ${x} b ${y} c\0x\0ONE\0y\0TWO"),
            QByteArrayLiteral("${x} rest ___${__ more\0x\0ONE"),
            QByteArrayLiteral("a ${x}  ${y} b\0x\0${y}\0y\0}"),
            "a ${open",
            "  blanks  "};
}

Seeds settings() {
    const QByteArray plain =
        "\n\rtitle=My book\n\rpageWidth=800\n\rbackColor=0x336699"
        "\n\rlanguage=English\n\rsound=YES\n\rinnerBackImage=STYLE_RESOURCE:a.jpg";
    return {plain, inUTF16(plain), "\xef\xbb\xbftitle=\xc3\xa4\r\ntitle=again\n=\nkey\nsound=a=b",
            "title=\xe4\xf6\xfc Latin\n", "innerBackImage=x/STYLE_RESOURCE:/../b.png\n"};
}

Seeds templates() {
    const QString xml = TemplateLibrary::templateXML(TemplateLibrary::composite(
        "group", TemplateLibrary::property("title", "a & b") +
                     TemplateLibrary::property("color", "0x336699", "pt_color")));
    QString deep;
    for (int depth = 0; depth < 10; ++depth)
        deep = TemplateLibrary::composite(QString("k%1").arg(depth), deep);
    Seeds seeds{xml.toUtf8(), inUTF16(xml), TemplateLibrary::templateXML(deep).toUtf8(),
                "<a>&nbsp;&#xffffffff;<b c=d e='", "<template><info/></template>"};
    const std::pair<const char*, const char*> changes[] = {
        {"&amp;", "&"},
        {"</title>", ""},
        {"</template>", ""},
        {"type=\"pt_text\"", "type=pt_text"},
        {"<desc/>", "<desc><![CDATA[x]]><!-- y --></desc>"},
        {"<template>", "<!DOCTYPE template [<!ENTITY e 'x'>]><template>&e;"},
        {"encoding=\"utf-8\"", "encoding=\"iso-8859-1\""}};
    for (const auto& [before, after] : changes)
        seeds.push_back(xml.toUtf8().replace(before, after));
    return seeds;
}

// The first byte says what the rest is.
Seeds facts() {
    using PDFSerialization::pack;
    PDFPage page;
    page.mediaBox = page.cropBox = QRectF(0, 0, 612, 792);
    page.display = QSizeF(612, 792);
    const PDFAnnotation web{"Link", QRectF(1, 2, 3, 4), "http://a/", {}};
    const PDFAnnotation within{"Link", QRectF(1, 2, 3, 4), {}, 5};
    const PDFOutlineNode leaf{"Leaf", 2, {}};
    const PDFOutlineNode branch{"Branch", -1, {leaf, leaf}};
    const PDFTextLine line{{10, 20, 90, 12}, 90, true, {{"two ", 0, 30}, {"words", 35, 55}}};
    return {'\0' + pack(7),
            '\1' + pack(QString("A title")),
            '\1' + pack(QString()),
            '\2' + pack(page),
            '\3' + pack(std::vector{web, within}),
            '\4' + pack(std::vector{branch, leaf}),
            '\5' + pack(std::vector{QString("iv"), QString("A-3")}),
            '\6' + pack(std::vector{line})};
}

// Images of every kind and a form that blends, without compression: the small samples have none.
Seeds documents() {
    PDFBuilder pdf;
    const QByteArray colours = QByteArray("\xff\x80\x00", 3).repeated(64);
    const QByteArray jpeg = PDFBuilder::encodeJPEG({8, 8}, 3, colours, 50);
    const QByteArray image = "/Type /XObject /Subtype /Image /Width 8 /Height 8 ";
    const int mask = pdf.addStream(image + "/BitsPerComponent 1 /ImageMask true",
                                   QByteArray("\xa0\x50").repeated(4));
    const int indexed = pdf.addStream(image +
                                          "/BitsPerComponent 8 /ColorSpace [/Indexed /DeviceRGB 1 "
                                          "<ff000000ff00>] /Mask " +
                                          PDFBuilder::reference(mask),
                                      QByteArray(64, '\1'));
    const int form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 80 80] "
                                   "/Group << /S /Transparency /I true /K true >>",
                                   PDFContent::fillRect({10, 10, 60, 60}));
    const int drawn[] = {pdf.addGrayImage({8, 8}, QByteArray(64, '\x55')),
                         pdf.addRGBImage({8, 8}, colours), pdf.addJPEGImage({8, 8}, 3, jpeg),
                         indexed, mask};
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 100, 100);
    QByteArray objects = "/X " + PDFBuilder::reference(form);
    page.content = "/S sh q /E gs 1 0 0 rg /X Do Q ";
    for (const int object : drawn) {
        const QByteArray name = 'I' + QByteArray::number(object);
        objects += " /" + name + ' ' + PDFBuilder::reference(object);
        page.content += PDFContent::image(name, {object * 2.0, object * 3.0, 9, 30});
    }
    page.extraEntries = "/Group << /S /Transparency /CS /DeviceRGB >> /Resources << "
                        "/ExtGState << /E << /BM /Multiply /ca 0.5 >> >> /Shading << /S << "
                        "/ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 100 0] /Function << "
                        "/FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >> "
                        "/XObject << " +
                        objects + " >> >>";
    pdf.addPage(page);
    return {pdf.build(), "%PDF-1.4\n"};
}

} // namespace

// fuzz-seeds FOLDER SAMPLES: writes a folder of seeds for each harness, the small samples among
// them.
int main(int argc, char** argv) {
    QHashSeed::setDeterministicGlobalSeed();
    const std::pair<const char*, Seeds> sets[] = {{"TextTemplate", textTemplates()},
                                                  {"SettingsFile", settings()},
                                                  {"TemplateXML", templates()},
                                                  {"PDFSerialization", facts()},
                                                  {"PDFImport", documents()}};
    if (argc != 3)
        return 2;
    const QDir root(QFile::decodeName(argv[1]));
    for (const auto& [harness, seeds] : sets) {
        for (std::size_t i = 0; i < seeds.size(); ++i)
            TestFiles::write(root.filePath(QString("%1/seed-%2").arg(harness).arg(i + 1)),
                             seeds[i]);
    }
    constexpr qint64 largest = 20'480;
    for (const QFileInfo& sample : QDir(QFile::decodeName(argv[2])).entryInfoList({"*.pdf"})) {
        if (sample.size() <= largest)
            QFile::copy(sample.filePath(), root.filePath("PDFImport/" + sample.fileName()));
    }
    return 0;
}
