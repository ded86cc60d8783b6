#include "annotations/FlashOutlineItem.h"

#include "platform/PlatformException.h"
#include "util/XMLText.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace {

const QString errorName = QStringLiteral("ERROR_INIT_OUTLINE_ITEM");

// The number that a text begins with, after white space; 0 when there is none. One that is too
// large or too small becomes the largest or smallest.
int leadingInteger(const QString& text) {
    const QByteArray bytes = text.trimmed().toLatin1();
    const bool hasPlus = bytes.startsWith('+') && !bytes.startsWith("+-");
    int number = 0;
    const auto [end, error] =
        std::from_chars(bytes.begin() + (hasPlus ? 1 : 0), bytes.end(), number);
    if (error == std::errc::result_out_of_range)
        return bytes.startsWith('-') ? std::numeric_limits<int>::min()
                                     : std::numeric_limits<int>::max();
    return number;
}

} // namespace

void FlashOutlineItem::addChild(const std::shared_ptr<FlashOutlineItem>& child) {
    iChildItems.push_back(child);
}

void FlashOutlineItem::removeChild(const std::shared_ptr<FlashOutlineItem>& child) {
    std::erase(iChildItems, child);
}

pugi::xml_node FlashOutlineItem::outlineItemAsXMLNode(pugi::xml_node parent) const {
    pugi::xml_node element = parent.append_child("o");
    // Readers of this form know an entry without a caption by this text.
    const QString caption = iCaption.isNull() ? QStringLiteral("(null)") : iCaption;
    element.append_child("c").text().set(caption.toUtf8().constData());
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
        throw PlatformException(errorName, QStringLiteral("Not a flash outline item"));
    if (depth > maximumDepth)
        throw PlatformException(
            errorName, QStringLiteral("entries are nested more than %1 deep").arg(maximumDepth));
    if (const pugi::xml_node caption = element.child("c"))
        iCaption = XMLText::textOf(caption);
    if (const pugi::xml_node page = element.child("p"))
        iPageIndex = leadingInteger(XMLText::textOf(page));
    if (const pugi::xml_node level = element.child("l"))
        iLevel = leadingInteger(XMLText::textOf(level));
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
