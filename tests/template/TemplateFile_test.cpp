#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"
#include "template/XMLRepair.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <malloc.h>

// How template files that are malformed, hostile or in odd encodings load.

namespace {

const QString floatName = QStringLiteral("float");

class TemplateFileTest : public testing::Test {
protected:
    void load(const QByteArray& xml) {
        library.addTemplateFile(floatName, xml);
        tmpl.loadTemplate(floatName);
    }
    void expectErrorAbout(const char* text) {
        EXPECT_TRUE(tmpl.loadError().contains(QString::fromLatin1(text)))
            << tmpl.loadError().toStdString();
        EXPECT_TRUE(tmpl.loadError().contains(FlashTemplate::tmplMetaPathForName(floatName)));
    }

    TemplateLibrary library;
    FlashTemplate tmpl;
};

QByteArray withProperties(const QString& properties) {
    return TemplateLibrary::templateXML(properties).toUtf8();
}

QString property(const char* key) {
    return TemplateLibrary::property(QString::fromLatin1(key), QStringLiteral(" v "));
}

QString nested(int depth) {
    QString open;
    QString close;
    const QString leaf = TemplateLibrary::composite(QStringLiteral("k"), QStringLiteral("|"));
    for (int level = 0; level < depth; ++level) {
        open += leaf.section(u'|', 0, 0);
        close += leaf.section(u'|', 1);
    }
    return open + close;
}

} // namespace

TEST_F(TemplateFileTest, RepairsWhatIsNotWellFormed) {
    QByteArray xml = withProperties(property("a") + property("b"));
    xml.replace("type=\"pt_text\"", "type=pt_number");
    const RecordedLog log;
    load(xml);
    EXPECT_TRUE(tmpl.loadError().isNull()) << tmpl.loadError().toStdString();
    ASSERT_EQ(tmpl.properties().size(), 2U);
    EXPECT_EQ(tmpl.properties()[1]->key(), u"b");
    EXPECT_EQ(tmpl.properties()[1]->value(), u" v ");
    EXPECT_EQ(tmpl.properties()[1]->propertyType(), pt_number);
    ASSERT_EQ(log.texts().size(), 1);
    EXPECT_TRUE(log.texts()[0].contains(u"line 2"));
}

TEST_F(TemplateFileTest, KeepsTextAsItIsInARepair) {
    const QByteArray value = "\n  two  \xE4<![CDATA[ <b> ]]>\t";
    QByteArray xml = withProperties(property("a")).replace(" v ", value);
    xml.replace("utf-8", "iso-8859-1").replace("\"pt_text\"", "pt_text");
    load(xml);
    ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
    EXPECT_EQ(tmpl.properties()[0]->value(), QStringLiteral("\n  two  ä <b> \t"));
}

TEST_F(TemplateFileTest, ReportsWhatCantBeRepaired) {
    for (const char* text : {"", "   ", "no markup", "\x01\x02\xFF\xFE\x7F", "<"}) {
        const RecordedLog log;
        load(text);
        expectErrorAbout("line 1");
        EXPECT_EQ(log.texts(), QStringList(tmpl.loadError()));
        EXPECT_TRUE(tmpl.properties().empty());
    }
}

TEST_F(TemplateFileTest, NamesTheElementThatIsMissing) {
    const struct {
        const char* removed;
        const char* error;
    } cases[] = {
        {"info", "root element lacks its \"info\""},
        {"htmlPath", "\"info\" element lacks its \"htmlPath\""},
        {"mobileTmplFilesPath", "\"info\" element lacks its \"mobileTmplFilesPath\""},
        {"properties", "root element lacks its \"properties\""},
        {"valueSource", "\"property\" element of key \"a\" lacks its \"valueSource\""},
    };
    for (const auto& [removed, error] : cases) {
        QByteArray xml = withProperties(property("a"));
        const QByteArray name(removed);
        xml.replace("<" + name + ">", "<x>")
            .replace("</" + name + ">", "</x>")
            .replace("<" + name + "/>", "<x/>");
        load(xml);
        expectErrorAbout(error);
    }
}

TEST_F(TemplateFileTest, KeepsWhatCameBeforeAMalformedProperty) {
    load(withProperties(property("a") + QStringLiteral("<property><key>b</key></property>") +
                        property("c")));
    ASSERT_EQ(tmpl.properties().size(), 1U);
    EXPECT_EQ(tmpl.properties()[0]->key(), u"a");
    EXPECT_EQ(tmpl.HTMLFilePath(), u"index.html");
}

TEST_F(TemplateFileTest, ForgetsAnEarlierError) {
    load("<");
    load(withProperties(property("a")));
    EXPECT_TRUE(tmpl.loadError().isNull());
}

TEST_F(TemplateFileTest, LoadsNestingUpToTheLimitOnly) {
    load(withProperties(nested(FlashTemplateProperty::maximumDepth)));
    EXPECT_TRUE(tmpl.loadError().isNull()) << tmpl.loadError().toStdString();
    EXPECT_EQ(tmpl.properties().size(), 1U);
    load(withProperties(nested(FlashTemplateProperty::maximumDepth + 1)));
    expectErrorAbout("nested");
    EXPECT_TRUE(tmpl.properties().empty());
}

TEST_F(TemplateFileTest, SurvivesDeepNestingQuickly) {
    const QByteArray deep = withProperties(nested(10'000));
    const QByteArray open = QByteArray("<a>").repeated(19'000);
    const QByteArray text = withProperties(property("a"))
                                .replace(" v ", QByteArray("<b>").repeated(50'000) +
                                                    QByteArray("</b>").repeated(50'000));
    QElapsedTimer clock;
    clock.start();
    for (const QByteArray& xml :
         {deep, deep.chopped(5), open, QByteArray("<a>").repeated(500'000), text})
        load(xml);
    EXPECT_EQ(tmpl.properties().size(), 1U);
    EXPECT_LT(clock.elapsed(), 10'000);
}

TEST_F(TemplateFileTest, GivesUpARepairThatTakesTooLong) {
    QElapsedTimer clock;
    clock.start();
    load("<a " + QByteArray("x=1 ").repeated(1'000'000) + "/>");
    expectErrorAbout("line 1");
    EXPECT_LT(clock.elapsed(), 30'000);
}

// The library that repairs forgets about a declaration within another one.
TEST(XMLRepair, KeepsNoMemory) {
    const QByteArray text = "<a b=\"c\"><?xml b<?xml c?>d</a";
    const auto repairAndMeasure = [&text] {
        for (int i = 0; i < 300; ++i)
            XMLRepair::repaired(text);
        return ::mallinfo2().uordblks;
    };
    const std::size_t before = repairAndMeasure();
    EXPECT_LT(repairAndMeasure(), before + 20'000);
}

TEST_F(TemplateFileTest, FetchesNoEntity) {
    library.addFile(QStringLiteral("secret"), "secret");
    const QByteArray path = library.path().toUtf8() + "/secret";
    QByteArray xml = withProperties(property("a")).replace(" v ", "[&x;]");
    xml.replace("<template>", "<!DOCTYPE template SYSTEM 'file://" + path +
                                  "' [<!ENTITY x SYSTEM 'file://" + path + "'>]><template>");
    for (const QByteArray& text : {xml, QByteArray(xml).replace("\"pt_text\"", "pt_text")}) {
        load(text);
        ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
        EXPECT_FALSE(tmpl.properties()[0]->value().contains(u"secret"));
    }
}

TEST_F(TemplateFileTest, ReadsTheEncodingsOfXML) {
    const QString xml = TemplateLibrary::templateXML(property("a"))
                            .replace(QStringLiteral(" v "), QStringLiteral("Größe"));
    QString latin = xml;
    latin.replace(QStringLiteral("utf-8"), QStringLiteral("iso-8859-1"));
    QByteArray utf16("\xFF\xFE");
    utf16.append(reinterpret_cast<const char*>(xml.utf16()), xml.size() * 2);
    for (const QByteArray& data :
         {xml.toUtf8(), "\xEF\xBB\xBF" + xml.toUtf8(), latin.toLatin1(), utf16}) {
        load(data);
        ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
        EXPECT_EQ(tmpl.properties()[0]->value(), QStringLiteral("Größe"));
    }
}

TEST_F(TemplateFileTest, ReadsTheEncodingThatItDeclares) {
    const struct {
        const char* encoding;
        QByteArray bytes;
        QString text;
    } cases[] = {
        {"windows-1252", "\x80 \xFC", QStringLiteral("€ ü")},
        {"ISO-8859-15", "\xA4 \xFC", QStringLiteral("€ ü")},
        {"gb2312", "\xC4\xE3\xBA\xC3", QStringLiteral("你好")},
        {"gb2312", "\xD6\xEC\xE9\x46", QStringLiteral("朱镕")}, // not in the first edition
    };
    for (const auto& [encoding, bytes, text] : cases) {
        SCOPED_TRACE(encoding);
        const QByteArray xml =
            withProperties(property("a")).replace(" v ", bytes).replace("utf-8", encoding);
        for (const QByteArray& data : {xml, QByteArray(xml).replace("\"pt_text\"", "pt_text")}) {
            load(data);
            ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
            EXPECT_EQ(tmpl.properties()[0]->value(), text);
        }
    }
    load(withProperties(property("a")).replace("utf-8", "klingon"));
    expectErrorAbout("the encoding \"klingon\"");
    load(withProperties(property("a")).replace(" v ", "\xFF").replace("utf-8", "gb2312"));
    expectErrorAbout("not in the encoding \"gb2312\"");
}

TEST_F(TemplateFileTest, ResolvesTheEntitiesThatItDeclares) {
    const auto loadWith = [this](const QByteArray& declarations, const QByteArray& value) {
        load(withProperties(property("a"))
                 .replace(" v ", value)
                 .replace("<template>", "<!DOCTYPE template [" + declarations + "]><template>"));
    };
    loadWith("<!-- ' <!ENTITY a 'no'> --><!ENTITY a \"1&b;]\"><!ENTITY a 'no'>"
             "<!ENTITY b '<![CDATA[&a;]]>2'><!ENTITY lt 'no'>",
             "&a;<!--&a;-->&lt;&c;&amp;a;");
    ASSERT_EQ(tmpl.properties().size(), 1U) << tmpl.loadError().toStdString();
    EXPECT_EQ(tmpl.properties()[0]->value(), u"1&a;2]<&c;&a;");

    QByteArray bomb = "<!ENTITY e0 ''>";
    for (int i = 1; i < 16; ++i)
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" +
                ("&e" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
    loadWith(bomb, "&e15;");
    expectErrorAbout("entities");
    loadWith("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;");
    expectErrorAbout("entities");
}
