#include "pdf/PDFEngine.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFReader.h"

#include <set>

namespace {

// Real outlines are a handful of levels deep; deeper ones are built to exhaust the stack.
constexpr int maxOutlineDepth = 64;

} // namespace

std::vector<PDFOutlineNode> PDFDocument::Engine::outlineLevel(pdf_obj* first, int depth,
                                                              std::set<pdf_obj*>& seen) const {
    std::vector<PDFOutlineNode> nodes;
    if (depth > maxOutlineDepth)
        return nodes;
    for (pdf_obj* object = first; object; object = entry(object, "Next")) {
        pdf_obj* dictionary =
            get([&](fz_context* ctx) { return pdf_resolve_indirect(ctx, object); },
                static_cast<pdf_obj*>(nullptr));
        if (!dictionary || seen.size() >= PDFLimits::maxOutlineEntries ||
            !seen.insert(dictionary).second)
            break;
        PDFOutlineNode node;
        node.label = text(entry(dictionary, "Title"));
        node.destinationPage = targetPage(dictionary).value_or(-1);
        node.children = outlineLevel(entry(dictionary, "First"), depth + 1, seen);
        nodes.push_back(std::move(node));
    }
    return nodes;
}

std::vector<PDFOutlineNode> PDFDocument::outline() const {
    if (iReader)
        return iReader->outline();
    pdf_obj* trailer =
        iEngine->get([this](fz_context* ctx) { return pdf_trailer(ctx, iEngine->document); },
                     static_cast<pdf_obj*>(nullptr));
    pdf_obj* root = iEngine->entry(iEngine->entry(trailer, "Root"), "Outlines");
    std::set<pdf_obj*> seen;
    return iEngine->outlineLevel(iEngine->entry(root, "First"), 1, seen);
}
