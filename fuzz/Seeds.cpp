#include "Fuzz.h"
#include "pdf/PDFSerialization.h"
#include "project/ProjectFile.h"
#include "project/ProjectJSON.h"
#include "support/TemplateLibrary.h"

#include <QBuffer>
#include <QDir>
#include <QHashFunctions>
#include <QImage>
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

// What the process that reads a document answers, in the order of PDFSerialization's harness.
Seeds answers() {
    using PDFSerialization::pack;
    PDFPage page;
    page.mediaBox = page.cropBox = QRectF(0, 0, 612, 792);
    page.display = QSizeF(612, 792);
    const PDFAnnotation web{"Link", QRectF(1, 2, 3, 4), "http://a/", {}};
    const PDFAnnotation within{"Link", QRectF(1, 2, 3, 4), {}, 2};
    const PDFOutlineNode leaf{"Leaf", 2, {}};
    const PDFOutlineNode branch{"Branch", -1, {leaf, leaf}};
    const PDFTextLine line{{10, 20, 90, 12}, 90, true, {{"two ", 0, 30}, {"words", 35, 55}}, 20};
    PDFPageText text{{line}, {{PDFTag::Kind::heading, 9, 2, 0}}, {{line.box, "A figure"}}};
    text.lines.front().words.front().tag = 0;
    return {pack(7),
            pack(QString("A title")),
            pack(page),
            pack(std::vector{web, within}),
            pack(std::vector{branch, leaf}),
            pack(std::vector{QString("A-9"), QString("A-10"), QString("iv")}),
            pack(PDFPageContent{text, {{QRectF(5, 6, 70, 80), PDFMark::Kind::image}}}),
            pack(PDFViewing{true, true, "UseThumbs", 1}),
            pack(std::vector{page.display})};
}

// The first byte says what the rest is.
Seeds facts() {
    Seeds seeds{'\1' + PDFSerialization::pack(QString())};
    for (char question = 0; const QByteArray& answer : answers())
        seeds.push_back(question++ + answer);
    return seeds;
}

// All answers, each after its length.
Seeds pageFacts() {
    QByteArray all;
    for (const QByteArray& answer : answers())
        all += char(answer.size()) + answer;
    QByteArray split = all;
    const QByteArray wide = PDFSerialization::pack(std::vector(3, QSizeF(200, 100)));
    split.replace(all.lastIndexOf(char(answers().back().size())), all.size(),
                  char(wide.size()) + wide);
    return {all, split};
}

// Without compression: the small samples have no pictures and labels.
Seeds documents() {
    return {
        Fuzz::documentWith("/S sh q /E gs 1 0 0 rg /X Do Q q 9 0 0 30 8 12 cm /I Do /J Do /M Do "
                           "/N Do /R Do Q",
                           "/PageLabels << /Nums [0 << /S /r >> 1 << /S /D /P (A-) >>] >>"),
        "%PDF-1.4\n"};
}

// Labels, then the content of a page.
Seeds contents() {
    Seeds seeds;
    for (const char* labels :
         {"<< /Nums [0 << /S /R /P (A-) /St 7 >> 1 << /S /a >> 2 << /P (x) >>] >>",
          "<< /Kids [<< /Nums [0 << /S /D /St 2147483647 >>] >> << /Kids [null] >>] >>"})
        for (const char* content :
             {"BT /F 12 Tf 1 0 0 1 9 50 Tm /P <</MCID 1>> BDC (b) Tj EMC /H <</MCID 0>> BDC (a) Tj "
              "ET EMC /P <</MCID 2>> BDC /X Do /I Do EMC /Artifact BMC EMC EMC",
              "BT /F 12 Tf 1 0 0 1 9 50 Tm (Two words) Tj 0 -14 TD [(a) -300 (b)] TJ ET",
              "q 0.5 g 10 10 m 50 90 l 90 10 60 60 20 20 c h W n 0 0 100 100 re f* Q 2 w [3 1] 0 d "
              "1 j 5 5 m 95 95 l S",
              "q /E gs /X Do Q /A gs q 9 0 0 30 8 12 cm /I Do /J Do /M Do /N Do Q /S sh",
              "BT 2 Tr /G 20 Tf 0 1 -1 0 50 50 Tm (abc) ' ET 1e9 0 0 1e-9 0 0 cm 0 0 1 1 re B"})
            seeds.push_back(QByteArray(labels) + '\0' + content);
    return seeds;
}

Seeds vectors() {
    Seeds seeds;
    for (const char* body :
         {"<defs>\n!'(*\n!%+\n<path id=\"g0\" d=\"M1-2h3\"/></defs><g fill=\"#123456\">@9,-3A</g>",
          "<clipPath id=\"c1\"><path d=\"m0 0\" clip-rule=\"evenodd\"/></clipPath><g "
          "clip-path=\"url(#c1)\" transform=\"matrix(.1 0 0 .1 0 0)\"><use href=\"#g0\"/></g>",
          "<image href=\"data:image/png;base64,/+A=\" width=\"9\" preserveAspectRatio=\"none\"/>",
          "<g onload=\"x\"/><script>a</script><a href=\"x\"/><!--a--><?a b?>&#60;<![CDATA[a]]>"})
        seeds.push_back(QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1pt\">\n") +
                        body + "\n</svg>\n");
    return seeds;
}

// Of the same pixels, with a resolution in each way in which files state it.
Seeds pictures() {
    QImage image(24, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    Seeds seeds;
    for (const char* format : {"png", "jpg", "bmp", "gif", "webp", "tiff", "ppm", "ico", "xbm"}) {
        QBuffer buffer;
        if (image.save(&buffer, format))
            seeds.push_back(buffer.data());
    }
    const QByteArray tiff("MM\0\x2a\0\0\0\x08\0\2\x01\x1a\0\5\0\0\0\1\0\0\0\x26\x01\x28\0\3"
                          "\0\0\0\1\0\2\0\0\0\0\0\0\0\0\x01\x2c\0\0\0\1",
                          46);
    const QByteArray exif = "Exif" + QByteArray(2, '\0') + tiff;
    seeds.push_back(tiff);
    seeds.push_back(QByteArray("\xff\xd8\xff\xe1\0", 5) + char(exif.size() + 2) + exif +
                    seeds[1].mid(2));
    return seeds;
}

Seeds userSettings() {
    const QByteArray plain = "[General]\nlastImportedFile=/a/b, c.pdf\nimportQualityLevel=2\n"
                             "outputType=@Invalid()\nPageWidth=-5\nimportPageRange=\"1-3,5\"\n\n";
    const QByteArray book =
        "1\\document=/a.pdf\n1\\folder=/b\n1\\name=c\n1\\title=d\n1\\place=/b\n";
    return {plain, plain + "[publishedBooks]\nsize=1\n" + book,
            "[publishedBooks]\n" + book + "size=99\n99\\document=@ByteArray(a\\x1)\n"};
}

// The first byte says which file of a book it is.
Seeds files() {
    return {
        "0{\"book\":\"ab\",\"document\":\"cd\",\"documentModified\":\"1\",\"documentSize\":\"2\","
        "\"files\":\"#\",\"pages\":\"ef\"}",
        "1<UserConfig><Ppts><Ppt><Normal><ImgPath>page/1.jpg</ImgPath></Normal></Ppt><Ppt><Normal>"
        "<ImgPath>page/12.png</ImgPath></Normal></Ppt></Ppts></UserConfig>",
        "2<title>A &amp; B &lt;</title>", "3\"a.html\",\"version\":\"12\"};\nconst X = 1;",
        "45 6 0 0 a\n0 0 7 8 b%20c\n"};
}

Seeds lists() {
    return {
        "pdf,id,title,set,set,pages\na.pdf,a,\"A, \"\"b\"\"\",X=1,Y=2,1-3\nb.pdf,B,,,,\n",
        "\xef\xbb\xbfPDF;Author;Language;colour\r\n\"c\r\nd.pdf\";M\xfcller; de;x\r\n;;;\r\n",
        "pdf\tdate\na.pdf\t1904\nA.pdf\t\n/b.pdf",
        "{\"pdf\": \"a.pdf\", \"id\": \"a\", \"author\": [\"A\", \"B\"], \"allow-text\": "
        "true}\n\n{\"pdf\": 1}\n[]\n{\"pdf\": \"b.pdf\", \"id\": \"../a\", \"set\": [\"x=1\"]}"};
}

// The first byte says whether the rest is a file or its description only.
Seeds projects() {
    Project project;
    project.documents = {{"/a/b.pdf", "b.pdf", 3, "ab"}, {"/a/c.jpg", "../c.jpg", -1, {}}};
    project.pages = {{1, 0, 0}, {}, {0, -1, 270}};
    project.values = {{"title", "A & B", false, {}}, {"logoFile", "/l", true, {"/l", "l", 1, {}}}};
    const QTemporaryDir folder;
    const QString file = folder.filePath("a.folvero");
    Message error;
    ProjectFile::write(project, "JPEG", file, &error);
    const QByteArray description = ProjectJSON::written(project);
    return {'0' + TestFiles::read(file), '1' + description,
            '1' + QByteArray(description).replace("\"format\": 1", "\"format\": 2")};
}

Seeds queries() {
    return {"well-known har* \"in the order\"\nA well-known Harbour in the order",
            "\xe6\x9d\xb1\xe4\xba\xac AND (a OR b) NEAR/3 -c:d ^e\n\xe6\x9d\xb1\xe4\xba\xac",
            "\"\"\" * ** \"a\"* stra\xc3\x9f"
            "e\nSTRASSE"};
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
                                                  {"PDFImport", documents()},
                                                  {"PDFContent", contents()},
                                                  {"PageFacts", pageFacts()},
                                                  {"Vectors", vectors()},
                                                  {"Pictures", pictures()},
                                                  {"UserSettings", userSettings()},
                                                  {"BookFiles", files()},
                                                  {"LibraryList", lists()},
                                                  {"ProjectFile", projects()},
                                                  {"SearchQuery", queries()}};
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
