#pragma once

#include "annotations/FlashOutlineItem.h"

// A book's table of contents and its XML form, the "ols" element.
class FlashOutline {
public:
    virtual ~FlashOutline() = default;

    using Items = FlashOutlineItem::Items;
    const Items& items() const { return iItems; }
    void setItems(const Items& items) { iItems = items; }

    // A new document whose root is the "ols" element.
    std::unique_ptr<pugi::xml_document> outlineAsXMLNode() const;
    // Replaces the entries. Throws PlatformException "ERROR_INIT_OUTLINES" for an element of
    // another name.
    void loadFromXMLNode(const pugi::xml_node& element);

protected:
    Items iItems;
};
