#include "annotations/FlashOutlinePDF.h"

#include "base/Log.h"

namespace {

std::shared_ptr<FlashOutlineItem> itemFrom(const PDFOutlineNode& node, int level) {
    auto item = std::make_shared<FlashOutlineItem>();
    item->setCaption(node.label);
    item->setPageIndex(node.destinationPage + 1);
    item->setLevel(level);
    return item;
}

} // namespace

void FlashOutlinePDF::loadOutlineFromPDF(const std::shared_ptr<PDFDocument>& document) {
    if (!document)
        return;
    const Log log("FlashOutlinePDF");
    for (const PDFOutlineNode& node : document->outline()) {
        log.debug(node.label);
        iItems.push_back(itemFrom(node, 1));
        addOutelineToItems(*iItems.back(), node, 1, *document);
    }
}

void FlashOutlinePDF::addOutelineToItems(FlashOutlineItem& item, const PDFOutlineNode& fromOutline,
                                         int atLevel, const PDFDocument& pdfDoc) {
    for (const PDFOutlineNode& node : fromOutline.children) {
        const auto entry = itemFrom(node, atLevel + 1);
        entry->setParent(&item);
        item.addChild(entry);
        addOutelineToItems(*entry, node, entry->level(), pdfDoc);
    }
}
