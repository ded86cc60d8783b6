#include "annotations/FlashOutlineItem.h"

#include "base/PlatformException.h"
#include "util/LenientInteger.h"
#include "util/XMLText.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr ErrorKind errorKind = ErrorKind::outlineItem;

} // namespace

void FlashOutlineItem::addChild(const std::shared_ptr<FlashOutlineItem>& child) {
    iChildItems.push_back(child);
}

void FlashOutlineItem::removeChild(const std::shared_ptr<FlashOutlineItem>& child) {
    std::erase(iChildItems, child);
}

pugi::xml_node FlashOutlineItem::outlineItemAsXMLNode(pugi::xml_node parent) const {
    pugi::xml_node element = parent.append_child("o");
    // The players expect this text for an entry without a caption.
    const QString caption = iCaption.isNull() ? QStringLiteral("(null)") : iCaption;
    element.append_child("c").text().set(XMLText::legal(caption).toUtf8().constData());
    element.append_child("p").text().set(iPageIndex);
    element.append_child("l").text().set(iLevel);
    const pugi::xml_node children = element.append_child("ci");
    for (const auto& item : iChildItems)
        item->outlineItemAsXMLNode(children);
    return element;
}

void FlashOutlineItem::loadItemFromXMLNode(const pugi::xml_node& element) {
    load(element, 1);
}

void FlashOutlineItem::load(const pugi::xml_node& element, int depth) {
    if (std::string_view(element.name()) != "o")
        throw PlatformException(errorKind, QStringLiteral("Not a flash outline item"));
    if (depth > maximumDepth)
        throw PlatformException(
            errorKind, QStringLiteral("entries are nested more than %1 deep").arg(maximumDepth));
    if (const pugi::xml_node caption = element.child("c"))
        iCaption = XMLText::textOf(caption);
    if (const pugi::xml_node page = element.child("p"))
        iPageIndex = lenientInteger(XMLText::textOf(page));
    if (const pugi::xml_node level = element.child("l"))
        iLevel = lenientInteger(XMLText::textOf(level));
    iChildItems.clear();
    for (const pugi::xml_node& list : element.children("ci")) {
        for (const pugi::xml_node& node : list.children("o")) {
            auto item = std::make_shared<FlashOutlineItem>();
            item->load(node, depth + 1);
            item->setParent(this);
            addChild(item);
        }
    }
}
