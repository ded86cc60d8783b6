#include "annotations/FlashOutline.h"

#include "base/PlatformException.h"

#include <string_view>

std::unique_ptr<pugi::xml_document> FlashOutline::outlineAsXMLNode() const {
    auto document = std::make_unique<pugi::xml_document>();
    const pugi::xml_node root = document->append_child("ols");
    for (const auto& item : iItems)
        item->outlineItemAsXMLNode(root);
    return document;
}

void FlashOutline::loadFromXMLNode(const pugi::xml_node& element) {
    if (std::string_view(element.name()) != "ols")
        throw PlatformException(ErrorKind::outline, QStringLiteral("Not a flash outline"));
    iItems.clear();
    for (const pugi::xml_node& node : element.children("o")) {
        auto item = std::make_shared<FlashOutlineItem>();
        item->loadItemFromXMLNode(node);
        item->setParent(nullptr);
        iItems.push_back(item);
    }
}
