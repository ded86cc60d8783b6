#pragma once

#include "pdf/MarkedContent.h"
#include "pdf/PDFEngine.h"
#include "pdf/PDFText.h"

#include <map>
#include <unordered_map>
#include <vector>

// Reads the structure tree of a tagged document, of which only what pages lead to: their marks name
// elements, and these the ones around them. A malicious tree has cycles, or a million children.
class PDFStructure {
public:
    explicit PDFStructure(const PDFEngine& engine);

    // Whether a page has marks that lead into the tree.
    bool has(pdf_obj* page) const;

    struct PageTags {
        std::vector<PDFTag> tags; // in the tree's order
        std::vector<int> ofMarks; // the number of each mark's tag; -1 for none
        std::vector<PDFAlternative> alternatives;
    };
    // May set replacements of marks. toDisplay maps the page's user space to that of its display.
    PageTags tagsOf(pdf_obj* page, std::vector<MarkedContent::Mark>& marks,
                    const fz_matrix& toDisplay);

private:
    enum class Role {
        within, // a part of a text, or unknown
        group,
        division, // a group that may have a text of its own
        section,
        paragraph,
        caption, // whole, whatever it consists of
        heading,
        item,
        label,
        itemBody,
        note,
        code,
        row,
        cell,
        figure,
        artifact
    };
    struct Element {
        int number = 0;
        int parent = 0; // 0 where it has no sound one
        int index = 0;  // among its parent's children
        Role role = Role::within;
        int level = 0; // of a heading; 0 for that of its section
        QString replacement;
    };
    // From the element that a mark belongs to up to the root's child.
    using Chain = std::vector<const Element*>;
    struct Place {
        std::size_t mark;
        std::vector<int> path; // of places among siblings, from the root on
        PDFTag tag;
    };
    class Page;

    Role roleOf(const QString& type, int& level);
    int indexOf(int child, int parent);
    const Element* element(int number);
    Chain chainOf(int number);
    static PDFTag tagFrom(const Chain& chain);
    static bool isFirstIn(const Chain& chain, std::size_t inner, std::size_t outer);

    const PDFEngine& iEngine;
    int iRoot;
    std::unordered_map<int, Element> iElements;
    std::unordered_map<int, std::unordered_map<int, int>> iChildren;
    std::size_t iCounted = 0; // children so far
};
