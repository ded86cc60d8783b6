#include "fuzz/Seeds.h"
#include "platform/PDFSerialization.h"
#include "support/TemplateLibrary.h"
#include "util/NSData+CocoaDevUsersAdditions.h"
#include "util/NSData+CommonCrypto.h"

#include <QString>
#include <QStringEncoder>

namespace {

// The first byte is the number of pages.
SeedSet pageRangeSeeds() {
    return {"PageRange",
            {"\x0f"
             "ALL",
             "\x05"
             "1",
             "\x64"
             "1-3,5,8-9",
             "\x01"
             "3,1-2,1-2",
             "\xff 5-3, 7 ,x,-2,2-",
             "\x10"
             "2147483647,-2147483648-1,1-99999999999"}};
}

SeedSet colorSeeds() {
    return {"ColorText", {"0x000000", "0xffFFff", "0x7F8081", " 0Xabc", "12345678", "#c0ffee"}};
}

SeedSet textTemplateSeeds() {
    return {"TextTemplate",
            {"<title>${title}</title>", QByteArrayLiteral("a ${x} b ${y} c\0x\0ONE\0y\0TWO"),
             QByteArrayLiteral("${x} rest ___${__ more\0x\0ONE"),
             QByteArrayLiteral("a ${x}  ${y} b\0x\0${y}\0y\0}"), "a ${open", "  blanks  "}};
}

SeedSet outlineSeeds() {
    const QByteArray entry = "<o><c>Chapter &amp; verse</c><p>3</p><l>1</l><ci/></o>";
    QByteArray deep = "<o><c>deepest</c></o>";
    for (int depth = 0; depth < 12; ++depth)
        deep = "<o><c>d</c><p>1</p><l>2</l><ci>" + deep + "</ci></o>";
    return {"OutlineXML",
            {"<ols/>", "<ols>" + entry + entry + "</ols>", "<ols>" + deep + "</ols>",
             "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<ols>\n <o><c><![CDATA[ a<b ]]></c>"
             "<p>-1</p><l> 07x</l><ci><o/></ci><ci><o><c>  </c></o></ci></o>\n</ols>",
             "<ols><o><c>&#x1F4D6;&#13;&lt;</c></o><x/></ols>", "<o><c>no list</c></o>"}};
}

SeedSet settingsSeeds() {
    const QByteArray plain =
        "\n\rtitle=My book\n\rpageWidth=800\n\rbackColor=0x336699"
        "\n\rlanguage=English\n\rsound=YES\n\rinnerBackImage=STYLE_RESOURCE:a.jpg";
    QStringEncoder utf16(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    return {"SettingsFile",
            {plain, QByteArray(utf16.encode(QString::fromUtf8(plain))),
             "\xef\xbb\xbftitle=\xc3\xa4\r\ntitle=again\n=\nkey\nsound=a=b",
             "title=\xe4\xf6\xfc Latin\n", "innerBackImage=x/STYLE_RESOURCE:/../b.png\n"}};
}

SeedSet templateSeeds() {
    const QString tree = TemplateLibrary::composite(
        QStringLiteral("group"),
        TemplateLibrary::property(QStringLiteral("title"), QStringLiteral("a & b")) +
            TemplateLibrary::property(QStringLiteral("color"), QStringLiteral("0x336699"),
                                      QStringLiteral("pt_color")));
    const QString xml = TemplateLibrary::templateXML(tree);
    const QByteArray sound = xml.toUtf8();
    QStringEncoder utf16(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    QString deep;
    for (int depth = 0; depth < 10; ++depth)
        deep = TemplateLibrary::composite(QStringLiteral("k%1").arg(depth), deep);
    const auto broken = [&sound](const char* before, const char* after) {
        return QByteArray(sound).replace(before, after);
    };
    return {"TemplateXML",
            {sound, QByteArray(utf16.encode(xml)), TemplateLibrary::templateXML(deep).toUtf8(),
             broken("&amp;", "&"), broken("</title>", ""),
             broken("type=\"pt_text\"", "type=pt_text"),
             broken("<desc/>", "<desc><![CDATA[x]]><!-- y --></desc>"),
             broken("<template>", "<!DOCTYPE template [<!ENTITY e 'x'>]><template>&e;"),
             broken("encoding=\"utf-8\"", "encoding=\"iso-8859-1\""), broken("</template>", ""),
             "<a>&nbsp;&#xffffffff;<b c=d e='", "<template><info/></template>"}};
}

// The first bytes choose the cipher, its options, the length of the key and whether a vector
// follows; every codec takes all of it as its data.
SeedSet codecSeeds() {
    const QByteArray text = "The same words again and again and again. ";
    std::vector<QByteArray> seeds{"",
                                  text,
                                  "MZXW6YTB",
                                  QByteArray(300, 'x'),
                                  QByteArray(70, '\0'),
                                  NSDataExtension::zlibDeflate(text.repeated(40)),
                                  NSDataExtension::gzipDeflate(text),
                                  NSDataExtension::zlibDeflate(QByteArray(100'000, '\0')),
                                  NSDataExtension::encodeCOBS(text + QByteArray(3, '\0') + text)};
    for (int algorithm = CCAlgorithmAES; algorithm <= CCAlgorithmRC4; ++algorithm) {
        for (char options = 0; options < 4; ++options) {
            QByteArray choice(1, char(algorithm));
            choice += QByteArray(1, options) + '\x05' + "abcde" + '\x01' + QByteArray(16, 'v');
            seeds.push_back(choice + text.repeated(2).left(64));
        }
    }
    return {"Codecs", seeds};
}

// The first byte says what the rest is.
SeedSet factSeeds() {
    PDFPageBoxes boxes;
    boxes.media = boxes.crop = QRectF(0, 0, 612, 792);
    boxes.display = QSizeF(612, 792);
    PDFAnnotation web{QStringLiteral("Link"), QRectF(1, 2, 3, 4), QStringLiteral("http://a/"), {}};
    PDFAnnotation within{QStringLiteral("Link"), QRectF(1, 2, 3, 4), {}, 5};
    const PDFOutlineNode leaf{QStringLiteral("Leaf"), 2, {}};
    const PDFOutlineNode branch{QStringLiteral("Branch"), -1, {leaf, leaf}};
    const PDFTextLine line{{10, 20, 90, 12},
                           90,
                           true,
                           {{QStringLiteral("two "), 0, 30}, {QStringLiteral("words"), 35, 55}}};
    return {
        "PDFSerialization",
        {'\0' + PDFSerialization::pack(7), '\1' + PDFSerialization::pack(QStringLiteral("A title")),
         '\1' + PDFSerialization::pack(QString()), '\2' + PDFSerialization::pack(boxes),
         '\3' + PDFSerialization::pack(std::vector{web, within}),
         '\4' + PDFSerialization::pack(std::vector{branch, leaf}),
         '\5' + PDFSerialization::pack(std::vector{QStringLiteral("iv"), QStringLiteral("A-3")}),
         '\6' + PDFSerialization::pack(std::vector{line})}};
}

} // namespace

std::vector<SeedSet> textSeeds() {
    return {pageRangeSeeds(), colorSeeds(),    textTemplateSeeds(), outlineSeeds(),
            settingsSeeds(),  templateSeeds(), codecSeeds(),        factSeeds()};
}
