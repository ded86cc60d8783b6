#pragma once

#include <QString>
#include <memory>
#include <pugixml.hpp>
#include <vector>

// An entry of a book's table of contents, with its child entries.
class FlashOutlineItem {
public:
    // The nesting limit when reading XML; it keeps a malicious file from exhausting the stack of
    // code that walks the tree.
    static constexpr int maximumDepth = 1000;

    QString caption() const { return iCaption; }
    void setCaption(const QString& caption) { iCaption = caption; }
    // One-based PDF page number; 0 when none was set.
    int pageIndex() const { return iPageIndex; }
    void setPageIndex(int index) { iPageIndex = index; }
    // The parent entry, not owned; nullptr at the top level.
    FlashOutlineItem* parent() const { return iParent; }
    void setParent(FlashOutlineItem* parent) { iParent = parent; }
    // Nesting level; 1 for top-level entries read from a PDF.
    int level() const { return iLevel; }
    void setLevel(int level) { iLevel = level; }

    using Items = std::vector<std::shared_ptr<FlashOutlineItem>>;
    const Items& childItems() const { return iChildItems; }
    void setChildItems(const Items& items) { iChildItems = items; }
    // Appends; the caller sets the child's parent.
    void addChild(const std::shared_ptr<FlashOutlineItem>& child);
    void removeChild(const std::shared_ptr<FlashOutlineItem>& child);

    // Appends this entry's "o" element, including its children, to parent and returns it.
    pugi::xml_node outlineItemAsXMLNode(pugi::xml_node parent) const;
    // Throws PlatformException "ERROR_INIT_OUTLINE_ITEM" for an element of another name or one with
    // entries nested deeper than maximumDepth.
    void loadItemFromXMLNode(const pugi::xml_node& element);

private:
    void load(const pugi::xml_node& element, int depth);

    QString iCaption;
    int iPageIndex = 0;
    FlashOutlineItem* iParent = nullptr;
    Items iChildItems;
    int iLevel = 0;
};
