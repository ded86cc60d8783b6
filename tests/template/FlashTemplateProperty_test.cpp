#include "template/FlashTemplateProperty.h"

#include "platform/PlatformException.h"
#include "support/TemplateLibrary.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace {

const QString required =
    QStringLiteral("<key>k</key><title>t</title><desc>d</desc><value>v</value>"
                   "<valueSource>s</valueSource><defaultValue>f</defaultValue>");

void load(FlashTemplateProperty& node, const QString& xml) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(xml.toUtf8().constData(),
                                     pugi::parse_default | pugi::parse_ws_pcdata));
    node.loadFromNode(document.document_element());
}

QString element(const QString& attributes, const QString& content) {
    return QStringLiteral("<property %1>%2</property>").arg(attributes, content);
}

int typeOf(const QString& attributes) {
    FlashTemplateProperty node;
    load(node, element(attributes, required));
    return node.propertyType();
}

} // namespace

TEST(FlashTemplateProperty, StartsWithATitleAndNoTexts) {
    const FlashTemplateProperty node;
    EXPECT_EQ(node.title(), QStringLiteral("Empty"));
    EXPECT_EQ(node.propertyType(), pt_text);
    EXPECT_EQ(node.childCount(), 0U);
    EXPECT_FALSE(node.readOnly());
    for (const QString& text : {node.key(), node.aTitle(), node.desc(), node.value(),
                                node.valueSource(), node.defaultValue()})
        EXPECT_TRUE(text.isNull());
}

TEST(FlashTemplateProperty, LoadsItsTextsFromTheirElements) {
    FlashTemplateProperty node;
    load(node, element({}, required + QStringLiteral("<aTitle>a</aTitle><aTitle>b</aTitle>"
                                                     "<value>second</value>")));
    EXPECT_EQ(node.key(), u"k");
    EXPECT_EQ(node.title(), u"t");
    EXPECT_EQ(node.desc(), u"d");
    EXPECT_EQ(node.value(), u"v");
    EXPECT_EQ(node.valueSource(), u"s");
    EXPECT_EQ(node.defaultValue(), u"f");
    EXPECT_EQ(node.aTitle(), u"a");
}

TEST(FlashTemplateProperty, TellsAnEmptyElementFromNone) {
    FlashTemplateProperty node;
    load(node, element({}, QStringLiteral("<key/><title/><desc/><value></value><valueSource/>"
                                          "<defaultValue/>")));
    for (const QString& text : {node.key(), node.title(), node.aTitle(), node.desc(), node.value(),
                                node.valueSource(), node.defaultValue()}) {
        EXPECT_FALSE(text.isNull());
        EXPECT_TRUE(text.isEmpty());
    }
}

TEST(FlashTemplateProperty, KeepsWhiteSpaceAndJoinsAllTextOfAnElement) {
    FlashTemplateProperty node;
    load(node, element({}, QStringLiteral("<key> </key><title>a<b>b<i>c</i></b><!--no-->d</title>"
                                          "<desc><![CDATA[<x> & ]]> y</desc><value>\n 1 </value>"
                                          "<valueSource/><defaultValue>&lt;&#65;</defaultValue>")));
    EXPECT_EQ(node.key(), u" ");
    EXPECT_EQ(node.title(), u"abcd");
    EXPECT_EQ(node.desc(), u"<x> &  y");
    EXPECT_EQ(node.value(), u"\n 1 ");
    EXPECT_EQ(node.defaultValue(), u"<A");
}

TEST(FlashTemplateProperty, ReadsItsTypeFromTheAttributes) {
    const struct {
        const char* attributes;
        int type;
    } cases[] = {
        {"type='pt_text'", 0},
        {"type='pt_number'", 1},
        {"type='pt_color'", 2},
        {"type='pt_list'", 3},
        {"type='pt_composite'", 4},
        {"type='pt_file'", 5},
        {"type='pt_list_fromFunction'", 6},
        {"type='pt_form_security'", 7},
        {"type='pt_font'", 8},
        {"type='pt_form_contactabout'", 9},
        {"type='pt_bool'", 10},
        {"type='PT_COLOR'", 0},
        {"type=' pt_color'", 0},
        {"type=''", 0},
        {"", 0},
        {"type='pt_color' aType=''", 10},
        {"aType='no'", 10},
    };
    for (const auto& [attributes, type] : cases)
        EXPECT_EQ(typeOf(QString::fromLatin1(attributes)), type) << attributes;
}

TEST(FlashTemplateProperty, LoadsTheChildrenOfTheFirstListOnly) {
    const auto child = [](const char* key) {
        return TemplateLibrary::property(QString::fromLatin1(key), QStringLiteral("1"));
    };
    FlashTemplateProperty node;
    load(node, element({}, required + child("direct") + QStringLiteral("<childProperties>") +
                               child("one") + QStringLiteral("<other/>") +
                               TemplateLibrary::composite(QStringLiteral("two"), child("deep")) +
                               QStringLiteral("</childProperties><childProperties>") +
                               child("late") + QStringLiteral("</childProperties>")));
    ASSERT_EQ(node.childCount(), 2U);
    const auto& one = *node.childProperties()[0];
    const auto& two = *node.childProperties()[1];
    EXPECT_EQ(one.key(), u"one");
    EXPECT_EQ(one.parent(), &node);
    ASSERT_EQ(two.childCount(), 1U);
    EXPECT_EQ(two.childProperties()[0]->key(), u"deep");
    EXPECT_EQ(two.childProperties()[0]->parent(), &two);
}

TEST(FlashTemplateProperty, ReplacesEverythingWhenLoadedAgain) {
    FlashTemplateProperty parent;
    FlashTemplateProperty node;
    load(node, TemplateLibrary::composite(QStringLiteral("a"),
                                          TemplateLibrary::property(QStringLiteral("b"), {})));
    node.setParent(&parent);
    load(node, element(QStringLiteral("type='pt_list'"), required));
    EXPECT_EQ(node.parent(), nullptr);
    EXPECT_EQ(node.key(), u"k");
    EXPECT_EQ(node.propertyType(), pt_list);
    EXPECT_EQ(node.childCount(), 0U);
}

TEST(FlashTemplateProperty, StaysAsItIsForAnotherElement) {
    FlashTemplateProperty node;
    node.setKey(QStringLiteral("kept"));
    load(node, QStringLiteral("<Property>%1</Property>").arg(required));
    node.loadFromNode(pugi::xml_node());
    EXPECT_EQ(node.key(), u"kept");
    EXPECT_EQ(node.title(), u"Empty");
}

TEST(FlashTemplateProperty, NamesTheElementThatItLacks) {
    for (const char* name : {"key", "title", "desc", "value", "valueSource", "defaultValue"}) {
        const QString missing = QString::fromLatin1(name);
        QString content = required;
        content.replace(QStringLiteral("<%1>").arg(missing), QStringLiteral("<x>"))
            .replace(QStringLiteral("</%1>").arg(missing), QStringLiteral("</x>"));
        FlashTemplateProperty node;
        try {
            load(node, element({}, content));
            ADD_FAILURE() << "loaded without " << name;
        } catch (const PlatformException& failure) {
            EXPECT_TRUE(failure.reason().contains(QStringLiteral("\"%1\"").arg(missing)))
                << failure.what();
        }
    }
}

TEST(FlashTemplateProperty, ReadsTheTrueWordsInAnyLetterCase) {
    for (const char* word : {"YES", "yes", "Show", "enable", "tRUE"})
        EXPECT_TRUE(StringUtil::valueAsBool(QString::fromLatin1(word))) << word;
    for (const char* word : {"No", "1", "ON", "Enabled", "", " YES", "ENABLED"})
        EXPECT_FALSE(StringUtil::valueAsBool(QString::fromLatin1(word))) << word;
    EXPECT_FALSE(StringUtil::valueAsBool(QString()));
}
