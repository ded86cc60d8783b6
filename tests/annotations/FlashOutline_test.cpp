#include "annotations/FlashOutline.h"

#include "support/FailureOf.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

std::shared_ptr<FlashOutlineItem> entry(const QString& caption, int page, int level) {
    auto item = std::make_shared<FlashOutlineItem>();
    item->setCaption(caption);
    item->setPageIndex(page);
    item->setLevel(level);
    return item;
}

std::string written(const FlashOutline& outline) {
    std::ostringstream text;
    outline.outlineAsXMLNode()->save(text, "", pugi::format_raw | pugi::format_no_declaration);
    return text.str();
}

void load(FlashOutline& outline, const std::string& xml) {
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(xml.c_str(), pugi::parse_default | pugi::parse_ws_pcdata));
    outline.loadFromXMLNode(document.document_element());
}

QString nameOfFailure(const std::string& xml) {
    FlashOutline outline;
    return failureOf([&] { load(outline, xml); }).name;
}

} // namespace

TEST(FlashOutline, WritesFourElementsAnEntry) {
    FlashOutline outline;
    EXPECT_EQ(written(outline), "<ols/>");
    outline.setItems({entry("Intro", 1, 1), entry(QString(), -2, 0)});
    EXPECT_EQ(written(outline), "<ols><o><c>Intro</c><p>1</p><l>1</l><ci/></o>"
                                "<o><c>(null)</c><p>-2</p><l>0</l><ci/></o></ols>");
}

TEST(FlashOutline, ReadsBackWhatItWrites) {
    const QString odd = " <a & b> Größe\n\t ";
    FlashOutline outline;
    const auto top = entry(odd, 3, 1);
    const auto middle = entry("", 4, 2);
    middle->addChild(entry("leaf", 5, 3));
    top->addChild(middle);
    // At the start of a file this character would be a byte order mark.
    top->addChild(entry("\uFEFFsecond", 6, 2));
    outline.setItems({top, entry("last", 7, 1)});

    FlashOutline copy;
    copy.setItems({entry("replaced", 1, 1)});
    load(copy, written(outline));
    EXPECT_EQ(written(copy), written(outline));
    ASSERT_EQ(copy.items().size(), 2U);
    const auto& first = *copy.items()[0];
    EXPECT_EQ(first.caption(), odd);
    EXPECT_EQ(first.parent(), nullptr);
    ASSERT_EQ(first.childItems().size(), 2U);
    EXPECT_EQ(first.childItems()[0]->parent(), &first);
    EXPECT_EQ(first.childItems()[0]->childItems()[0]->parent(), first.childItems()[0].get());
}

TEST(FlashOutline, ReadsTheNumberThatATextBeginsWith) {
    for (const auto& [text, number] :
         {std::pair{" \n-3x", -3}, {"+-4", 0}, {"<![CDATA[6]]>7", 67}}) {
        FlashOutline outline;
        load(outline, std::string("<ols><o><p>") + text + "</p></o></ols>");
        EXPECT_EQ(outline.items()[0]->pageIndex(), number) << text;
    }
}

TEST(FlashOutline, RefusesOtherElementsAndEntriesNestedTooDeep) {
    EXPECT_EQ(nameOfFailure("<o/>"), "ERROR_INIT_OUTLINES");
    const auto nested = [](int depth) {
        const QByteArray text =
            QByteArray("<o><ci>").repeated(depth) + QByteArray("</ci></o>").repeated(depth);
        return "<ols>" + text.toStdString() + "</ols>";
    };
    EXPECT_EQ(nameOfFailure(nested(FlashOutlineItem::maximumDepth)), QString());
    EXPECT_EQ(nameOfFailure(nested(FlashOutlineItem::maximumDepth + 1)), "ERROR_INIT_OUTLINE_ITEM");
}
