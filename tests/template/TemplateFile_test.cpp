#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"
#include "template/XMLRepair.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <malloc.h>

// How template files that are malformed, hostile or in odd encodings load.

namespace {

const QString floatName = "float";

QByteArray withProperties(const QString& properties) {
    return TemplateLibrary::templateXML(properties).toUtf8();
}

QString property(const QString& key) {
    return TemplateLibrary::property(key, " v ");
}

// A file with one property of that value.
QByteArray withValue(const QByteArray& value) {
    return withProperties(property("a")).replace(" v ", value);
}

// Not well-formed.
QByteArray torn(QByteArray xml) {
    return xml.replace("\"pt_text\"", "pt_text");
}

QByteArray utf16(const QString& text) {
    return "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

QByteArray nested(int depth) {
    const QStringList leaf = TemplateLibrary::composite("k", "|").split(u'|');
    return withProperties(leaf[0].repeated(depth) + leaf[1].repeated(depth));
}

class TemplateFileTest : public testing::Test {
protected:
    void load(const QByteArray& xml) {
        library.addTemplateFile(floatName, xml);
        tmpl.loadTemplate(floatName);
    }
    void expectValue(const QByteArray& xml, const QString& value) {
        load(xml);
        ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
        EXPECT_EQ(tmpl.properties()[0]->value(), value);
    }
    void expectError(const QByteArray& xml, const QString& text) {
        load(xml);
        for (const QString& part : {text, FlashTemplate::tmplMetaPathForName(floatName)})
            EXPECT_TRUE(tmpl.loadError().contains(part)) << tmpl.loadError().toStdString();
    }

    TemplateLibrary library;
    FlashTemplate tmpl;
};

} // namespace

TEST_F(TemplateFileTest, RepairsWhatIsNotWellFormed) {
    QByteArray xml = withProperties(property("a") + property("b"));
    const RecordedLog log;
    load(xml.replace("type=\"pt_text\"", "type=pt_number"));
    EXPECT_TRUE(tmpl.loadError().isNull()) << tmpl.loadError().toStdString();
    ASSERT_EQ(tmpl.properties().size(), 2U);
    EXPECT_EQ(tmpl.properties()[1]->key(), "b");
    EXPECT_EQ(tmpl.properties()[1]->value(), " v ");
    EXPECT_EQ(tmpl.properties()[1]->propertyType(), pt_number);
    EXPECT_EQ(log.texts().filter("line 2").size(), 1);
    const QByteArray value = "\n  two  \xE4<![CDATA[ <b> ]]>\t";
    expectValue(torn(withValue(value)).replace("utf-8", "iso-8859-1"), "\n  two  ä <b> \t");
}

TEST_F(TemplateFileTest, ReportsWhatCannotBeRepaired) {
    for (const char* text : {"", "   ", "no markup", "\x01\x02\xFF\xFE\x7F", "<"}) {
        const RecordedLog log;
        expectError(text, "line 1");
        EXPECT_EQ(log.texts(), QStringList(tmpl.loadError()));
        EXPECT_TRUE(tmpl.properties().empty());
    }
    load(withValue(""));
    EXPECT_TRUE(tmpl.loadError().isNull());
}

TEST_F(TemplateFileTest, NamesTheElementThatIsMissing) {
    const QMap<QByteArray, QByteArrayList> required{
        {"root element", {"info", "properties"}},
        {"\"info\" element",
         {"htmlPath", "swfPath", "defaultStyle", "macAppFilesFolder", "mobileTmplFilesPath"}},
        {"\"property\" element", {"key"}},
        {"\"property\" element of key \"a\"",
         {"title", "desc", "value", "valueSource", "defaultValue"}}};
    for (auto it = required.cbegin(); it != required.cend(); ++it) {
        for (const QByteArray& name : *it)
            expectError(withValue("1")
                            .replace("<" + name + ">", "<x>")
                            .replace("</" + name + ">", "</x>")
                            .replace("<" + name + "/>", "<x/>"),
                        it.key() + " lacks its \"" + name + '"');
    }
}

TEST_F(TemplateFileTest, KeepsWhatCameBeforeAMalformedProperty) {
    load(withProperties(property("a") + "<property><key>b</key></property>" + property("c")));
    ASSERT_EQ(tmpl.properties().size(), 1U);
    EXPECT_EQ(tmpl.properties()[0]->key(), "a");
    EXPECT_EQ(tmpl.HTMLFilePath(), "index.html");
}

TEST_F(TemplateFileTest, LoadsNestingUpToTheLimitOnly) {
    expectValue(nested(FlashTemplateProperty::maximumDepth), "");
    expectError(nested(FlashTemplateProperty::maximumDepth + 1), "nested");
    EXPECT_TRUE(tmpl.properties().empty());
}

TEST_F(TemplateFileTest, SurvivesDeepNestingQuickly) {
    const QByteArray deep = nested(10'000);
    const QByteArray open("<a>");
    QElapsedTimer clock;
    clock.start();
    for (const QByteArray& xml :
         {deep, deep.chopped(5), open.repeated(19'000), open.repeated(500'000),
          withValue(open.repeated(50'000) + QByteArray("</a>").repeated(50'000))})
        load(xml);
    EXPECT_EQ(tmpl.properties().size(), 1U);
    EXPECT_LT(clock.elapsed(), 10'000);
}

TEST_F(TemplateFileTest, CancelsARepairThatTakesTooLong) {
    QElapsedTimer clock;
    clock.start();
    expectError("<a " + QByteArray("x=1 ").repeated(1'000'000) + "/>", "line 1");
    EXPECT_LT(clock.elapsed(), 30'000);
}

// libtidy leaks a declaration within another one.
TEST(XMLRepair, KeepsNoMemory) {
    const auto repairAndMeasure = [] {
        for (int i = 0; i < 300; ++i)
            XMLRepair::repaired("<a b=\"c\"><?xml b<?xml c?>d</a");
        return ::mallinfo2().uordblks;
    };
    const std::size_t before = repairAndMeasure();
    EXPECT_LT(repairAndMeasure(), before + 20'000);
}

TEST_F(TemplateFileTest, FetchesNoEntity) {
    library.addFile("secret", "secret");
    const QByteArray file = "SYSTEM 'file://" + library.path().toUtf8() + "/secret'";
    const QByteArray xml = withValue("[&x;]").replace(
        "<template>", "<!DOCTYPE template " + file + " [<!ENTITY x " + file + ">]><template>");
    for (const QByteArray& text : {xml, torn(xml)}) {
        load(text);
        ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
        EXPECT_FALSE(tmpl.properties()[0]->value().contains("secret"));
    }
}

TEST_F(TemplateFileTest, ReadsTheEncodingThatItDeclares) {
    const std::tuple<const char*, QByteArray, QString> cases[] = {
        {"utf-8", "Gr\xC3\xB6\xC3\x9F\x65", "Größe"},
        {"iso-8859-1", "Gr\xF6\xDF\x65", "Größe"},
        {"windows-1252", "\x80 \xFC", "€ ü"},
        {"ISO-8859-15", "\xA4 \xFC", "€ ü"},
        {"gb2312", "\xC4\xE3\xBA\xC3", "你好"},
        {"gb2312", "\xD6\xEC\xE9\x46", "朱镕"}, // not in the first edition
    };
    for (const auto& [encoding, bytes, text] : cases) {
        SCOPED_TRACE(encoding);
        const QByteArray xml = withValue(bytes).replace("utf-8", encoding);
        expectValue(xml, text);
        expectValue(torn(xml), text);
    }
    for (const QByteArray& xml :
         {"\xEF\xBB\xBF" + withValue("ß"), utf16(QString::fromUtf8(withValue("ß")))})
        expectValue(xml, "ß");
    expectError(withValue("").replace("utf-8", "klingon"), "the encoding \"klingon\"");
    expectError(withValue("\xFF").replace("utf-8", "gb2312"), "not in the encoding \"gb2312\"");
}

TEST_F(TemplateFileTest, ResolvesTheEntitiesThatItDeclares) {
    const auto with = [](const QByteArray& declarations, const QByteArray& value) {
        return withValue(value).replace("<template>",
                                        "<!DOCTYPE template [" + declarations + "]><template>");
    };
    expectValue(with("<!-- ' <!ENTITY a 'no'> --><!ENTITY a \"1&b;]\"><!ENTITY a 'no'>"
                     "<!ENTITY b '<![CDATA[&a;]]>2'><!ENTITY lt 'no'>",
                     "&a;<!--&a;-->&lt;&c;&amp;a;"),
                "1&a;2]<&c;&a;");
    QByteArray bomb = "<!ENTITY e0 ''>";
    for (int i = 1; i < 16; ++i)
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" +
                ("&e" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
    expectError(with(bomb, "&e15;"), "entities");
    expectError(with("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"), "entities");
}
