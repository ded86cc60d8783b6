#include "template/FlashTemplateProperty.h"

#include "support/TemplateLibrary.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

using namespace Qt::StringLiterals;

namespace {

const QString required = "<key>k</key><title>t</title><desc>d</desc><value>v</value>"
                         "<valueSource>s</valueSource><defaultValue>f</defaultValue>";

void load(FlashTemplateProperty& node, const QString& content, const QString& attributes = {}) {
    const QString xml = u"<property %1>%2</property>"_s.arg(attributes, content);
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(xml.toUtf8().constData(),
                                     pugi::parse_default | pugi::parse_ws_pcdata));
    node.loadFromNode(document.document_element());
}

QStringList texts(const FlashTemplateProperty& node) {
    return {node.key(),    node.title(),       node.desc(),        node.value(),
            node.aTitle(), node.valueSource(), node.defaultValue()};
}

int typeOf(const QString& attributes) {
    FlashTemplateProperty node;
    load(node, required, attributes);
    return node.propertyType();
}

QString child(const QString& key, const QString& children = {}) {
    return TemplateLibrary::composite(key, children);
}

} // namespace

TEST(FlashTemplateProperty, DistinguishesEmptyElementsFromNullTexts) {
    FlashTemplateProperty node;
    EXPECT_EQ(node.title(), "Empty");
    EXPECT_TRUE(node.aTitle().isNull() && node.value().isNull());
    load(node, "<key/><title/><desc/><value></value><valueSource/><defaultValue/>");
    for (const QString& text : texts(node))
        EXPECT_TRUE(text.isEmpty() && !text.isNull());
}

TEST(FlashTemplateProperty, KeepsWhiteSpaceAndJoinsAllTextOfTheFirstElementOfAName) {
    FlashTemplateProperty node;
    load(node, "<key> </key><title>a<b>b<i>c</i></b><!--no-->d</title><title>second</title>"
               "<desc><![CDATA[<x> & ]]> y</desc><value>\n 1 </value><aTitle>a</aTitle>"
               "<valueSource>s</valueSource><defaultValue>&lt;&#65;</defaultValue>");
    EXPECT_EQ(texts(node).join(u'|'), " |abcd|<x> &  y|\n 1 |a|s|<A");
}

TEST(FlashTemplateProperty, ReadsItsTypeFromTheAttributes) {
    const QStringList names =
        u"pt_text pt_number pt_color pt_list pt_composite pt_file pt_list_fromFunction "
        "pt_form_security pt_font pt_form_contactabout pt_bool"_s.split(u' ');
    for (int type = 0; type < names.size(); ++type) {
        EXPECT_EQ(typeOf(u"type='%1'"_s.arg(names[type])), type);
    }
    for (const QString text : {"type='PT_COLOR'", "type=' pt_color'", "type=''", ""})
        EXPECT_EQ(typeOf(text), pt_text);
    for (const QString marked : {"type='pt_color' aType=''", "aType='no'"})
        EXPECT_EQ(typeOf(marked), pt_bool);
}

TEST(FlashTemplateProperty, LoadsTheChildrenOfTheFirstListOnly) {
    FlashTemplateProperty node;
    load(node, required + child("direct") + "<childProperties>" + child("one") + "<other/>" +
                   child("two", child("deep")) + "</childProperties><childProperties>" +
                   child("late") + "</childProperties>");
    ASSERT_EQ(node.childCount(), 2U);
    const auto& one = *node.childProperties()[0];
    const auto& two = *node.childProperties()[1];
    EXPECT_EQ(one.key(), "one");
    EXPECT_EQ(one.parent(), &node);
    ASSERT_EQ(two.childCount(), 1U);
    EXPECT_EQ(two.childProperties()[0]->key(), "deep");
    EXPECT_EQ(two.childProperties()[0]->parent(), &two);
}

TEST(FlashTemplateProperty, ReadsTheTrueWordsInAnyLetterCase) {
    for (const QString word : {"YES", "yes", "Show", "enable", "tRUE"})
        EXPECT_TRUE(StringUtil::valueAsBool(word)) << word.toStdString();
    for (const QString word : {"No", "1", "ON", "Enabled", "", " YES"})
        EXPECT_FALSE(StringUtil::valueAsBool(word)) << word.toStdString();
    EXPECT_FALSE(StringUtil::valueAsBool(QString()));
}
