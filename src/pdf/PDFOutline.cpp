#include "pdf/DrawablePDF.h"
#include "pdf/PDFEngine.h"
#include "pdf/PDFLimits.h"

#include <set>

namespace {

// Real outlines are a handful of levels deep; deeper ones are built to exhaust the stack.
constexpr int maxOutlineDepth = 64;

// The entries of one level starting with first, with their children. A file may link its entries in
// a cycle, so each is read only once.
std::vector<PDFOutlineNode> outlineLevel(const PDFEngine& engine, pdf_obj* first, int depth,
                                         std::set<pdf_obj*>& seen) {
    std::vector<PDFOutlineNode> nodes;
    if (depth > maxOutlineDepth)
        return nodes;
    for (pdf_obj* object = first; object; object = engine.entry(object, "Next")) {
        pdf_obj* dictionary = engine.resolved(object);
        if (!dictionary || seen.size() >= PDFLimits::maxOutlineEntries ||
            !seen.insert(dictionary).second)
            break;
        PDFOutlineNode node;
        node.label = engine.text(engine.entry(dictionary, "Title"));
        const PDFTarget target = engine.target(dictionary).value_or(PDFTarget());
        node.destinationPage = target.page;
        node.destinationAcross = target.across;
        node.children = outlineLevel(engine, engine.entry(dictionary, "First"), depth + 1, seen);
        nodes.push_back(std::move(node));
    }
    return nodes;
}

} // namespace

std::vector<PDFOutlineNode> DrawablePDF::outline() const {
    pdf_obj* root = iEngine->entry(iEngine->trailerEntry("Root"), "Outlines");
    std::set<pdf_obj*> seen;
    return outlineLevel(*iEngine, iEngine->entry(root, "First"), 1, seen);
}
