#include "annotations/FlashOutlinePDF.h"

#include "base/Log.h"

void FlashOutlinePDF::loadOutlineFromPDF(const std::shared_ptr<PDFDocument>& document) {
    if (!document)
        return;
    const Log log("FlashOutlinePDF");
    for (const PDFOutlineNode& node : document->outline()) {
        auto item = std::make_shared<FlashOutlineItem>();
        item->setCaption(node.label);
        log.debug(node.label);
        item->setPageIndex(node.destinationPage + 1);
        item->setLevel(1);
        iItems.push_back(item);
        addOutelineToItems(*item, node, 1, *document);
    }
}

void FlashOutlinePDF::addOutelineToItems(FlashOutlineItem& item, const PDFOutlineNode& fromOutline,
                                         int atLevel, const PDFDocument& pdfDoc) {
    for (const PDFOutlineNode& node : fromOutline.children) {
        auto entry = std::make_shared<FlashOutlineItem>();
        entry->setCaption(node.label);
        entry->setPageIndex(node.destinationPage + 1);
        entry->setLevel(atLevel + 1);
        entry->setParent(&item);
        item.addChild(entry);
        addOutelineToItems(*entry, node, entry->level(), pdfDoc);
    }
}
