#include "pdf/PDFStructure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

constexpr int maxAncestors = 64;
constexpr int maxRoleSteps = 8;
// Of all elements that a document's pages lead to, and once more of those of a page: they are
// counted to know their order.
constexpr std::size_t maxChildren = 1'000'000;
constexpr std::size_t maxAlternatives = 500; // of a page
constexpr qsizetype maxAlternative = 4'000;  // characters

// An object of the document. It stays whole even when MuPDF repairs the file meanwhile.
class Kept {
public:
    Kept(const PDFEngine& engine, pdf_obj* object)
        : iEngine(engine), iObject(pdf_keep_obj(engine.context, object)) {}
    Kept(const PDFEngine& engine, int number)
        : Kept(engine, engine.object([&](fz_context* ctx) {
              pdf_obj* reference = pdf_new_indirect(ctx, engine.document, number, 0);
              pdf_obj* found = nullptr;
              runAndDrop(
                  ctx, [&] { found = pdf_resolve_indirect(ctx, reference); },
                  [&] { pdf_drop_obj(ctx, reference); });
              return found;
          })) {}
    ~Kept() { pdf_drop_obj(iEngine.context, iObject); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    pdf_obj* get() const { return iObject; }
    Kept entry(const char* key) const { return {iEngine, iEngine.entry(iObject, key)}; }
    int length() const {
        return iEngine.get([&](fz_context* ctx) { return pdf_array_len(ctx, iObject); }, 0);
    }
    Kept at(int index) const {
        return {iEngine, iEngine.object(
                             [&](fz_context* ctx) { return pdf_array_get(ctx, iObject, index); })};
    }
    // Of a reference; 0 for other objects.
    int number() const {
        return iEngine.get([&](fz_context* ctx) { return pdf_to_num(ctx, iObject); }, 0);
    }
    // -1 for what is none.
    int integer() const {
        return iEngine.get(
            [&](fz_context* ctx) {
                return pdf_is_int(ctx, iObject) ? pdf_to_int(ctx, iObject) : -1;
            },
            -1);
    }
    QString text() const { return iEngine.text(iObject); }
    QString name() const { return iEngine.name(iObject); }

private:
    const PDFEngine& iEngine;
    pdf_obj* iObject;
};

} // namespace

PDFStructure::PDFStructure(const PDFEngine& engine)
    : iEngine(engine),
      iRoot(Kept(engine, engine.entry(engine.trailerEntry("Root"), "StructTreeRoot")).number()) {}

bool PDFStructure::has(pdf_obj* page) const {
    return iRoot > 0 && iEngine.entry(page, "StructParents") != nullptr;
}

PDFStructure::Role PDFStructure::roleOf(const QString& type, int& level) {
    static const std::map<QString, Role> roles{{"Document", Role::group},
                                               {"DocumentFragment", Role::group},
                                               {"Part", Role::group},
                                               {"Art", Role::group},
                                               {"Div", Role::division},
                                               {"Aside", Role::division},
                                               {"BlockQuote", Role::division},
                                               {"TOC", Role::group},
                                               {"Index", Role::group},
                                               {"L", Role::group},
                                               {"Table", Role::group},
                                               {"THead", Role::group},
                                               {"TBody", Role::group},
                                               {"TFoot", Role::group},
                                               {"Sect", Role::section},
                                               {"P", Role::paragraph},
                                               {"Caption", Role::caption},
                                               {"TOCI", Role::caption},
                                               {"H", Role::heading},
                                               {"Title", Role::heading},
                                               {"LI", Role::item},
                                               {"Lbl", Role::label},
                                               {"LBody", Role::itemBody},
                                               {"Note", Role::note},
                                               {"FENote", Role::note},
                                               {"Code", Role::code},
                                               {"TR", Role::row},
                                               {"TH", Role::cell},
                                               {"TD", Role::cell},
                                               {"Figure", Role::figure},
                                               {"Artifact", Role::artifact}};
    static const std::array inText{"Span",  "Quote", "Reference", "BibEntry",  "Link",
                                   "Annot", "Em",    "Sub",       "Strong",    "Ruby",
                                   "RB",    "RT",    "Formula",   "RP",        "Warichu",
                                   "WT",    "WP",    "Form",      "NonStruct", "Private"};
    const Kept map = Kept(iEngine, iRoot).entry("RoleMap");
    QString name = type;
    for (int step = 0; step < maxRoleSteps && !name.isEmpty(); ++step) {
        if (name.size() > 1 && name[0] == u'H' && name.mid(1).toInt() > 0) {
            level = std::min(name.mid(1).toInt(), PDFTag::deepestLevel);
            return Role::heading;
        }
        if (const auto found = roles.find(name); found != roles.end()) {
            level = name == u"Title" ? 1 : 0;
            return found->second;
        }
        if (std::find(inText.begin(), inText.end(), name) != inText.end())
            break;
        name = map.entry(name.toUtf8().constData()).name();
    }
    return Role::within;
}

// -1 for an element that its parent does not have, or has among too many.
int PDFStructure::indexOf(int child, int parent) {
    const auto [found, isNew] = iChildren.try_emplace(parent);
    auto& children = found->second;
    if (isNew) {
        const Kept list = Kept(iEngine, parent).entry("K");
        const int count = list.length();
        if (count == 0)
            children.emplace(list.number(), 0);
        for (int i = 0; i < count && iCounted < maxChildren; ++i, ++iCounted) {
            if (const int number = list.at(i).number(); number > 0)
                children.emplace(number, i);
        }
    }
    const auto place = children.find(child);
    return place == children.end() ? -1 : place->second;
}

// Null for what is none.
const PDFStructure::Element* PDFStructure::element(int number) {
    if (const auto known = iElements.find(number); known != iElements.end())
        return &known->second;
    Element made;
    made.number = number;
    const Kept object(iEngine, number);
    const int parent = object.entry("P").number();
    made.index = parent > 0 ? indexOf(number, parent) : -1;
    made.parent = made.index >= 0 ? parent : 0;
    made.role = roleOf(object.entry("S").name(), made.level);
    made.replacement = object.entry("ActualText").text();
    return &iElements.emplace(number, std::move(made)).first->second;
}

// Empty for an element that does not lead to the root.
PDFStructure::Chain PDFStructure::chainOf(int number) {
    Chain chain;
    while (number != iRoot) {
        const Element* next = number > 0 && chain.size() < maxAncestors ? element(number) : nullptr;
        if (!next || next->parent == 0)
            return {};
        chain.push_back(next);
        number = next->parent;
    }
    return chain;
}

// Whether nothing but a label stands before an element in one around it.
bool PDFStructure::isFirstIn(const Chain& chain, std::size_t inner, std::size_t outer) {
    for (std::size_t i = inner; i < outer; ++i) {
        const bool mayFollowLabel = i + 1 == outer;
        if (chain[i]->index > (mayFollowLabel ? 1 : 0))
            return false;
    }
    return true;
}

// The text's block is the innermost element that may be one; some take in their first paragraph.
PDFTag PDFStructure::tagFrom(const Chain& chain) {
    using Kind = PDFTag::Kind;
    constexpr std::size_t none = maxAncestors;
    std::size_t block = none;
    int sections = 0;
    int cell = 0;
    PDFTag tag;
    const auto take = [&](std::size_t i, Kind kind) {
        block = i;
        tag.kind = kind;
    };
    const auto isParagraph = [&] { return block != none && tag.kind == Kind::paragraph; };
    for (std::size_t i = 0; i < chain.size(); ++i) {
        const Element& element = *chain[i];
        switch (element.role) {
        case Role::within:
            break;
        case Role::division:
            if (block == none)
                take(i, Kind::paragraph);
            break;
        case Role::section:
            ++sections;
            [[fallthrough]];
        case Role::group:
            break;
        case Role::paragraph:
            if (block == none || tag.kind == Kind::code)
                take(i, Kind::paragraph);
            break;
        case Role::caption:
            take(i, Kind::paragraph);
            break;
        case Role::heading:
            if (block == none || isParagraph() || tag.kind == Kind::code) {
                take(i, Kind::heading);
                tag.level = element.level;
            }
            break;
        case Role::item:
            if (block == none || (isParagraph() && isFirstIn(chain, block, i)))
                take(i, Kind::listItem);
            break;
        case Role::note:
            if (block == none || (isParagraph() && isFirstIn(chain, block, i)))
                take(i, Kind::note);
            else if (isParagraph())
                tag.kind = Kind::note;
            break;
        case Role::code:
            if (block == none || isParagraph())
                take(i, Kind::code);
            break;
        case Role::cell:
            cell = std::min(element.index, PDFTag::lastCell);
            break;
        case Role::row:
            return {Kind::tableRow, element.number, 0, cell};
        case Role::figure:
            if (block == none || chain[block]->role != Role::caption)
                return {Kind::unknown, element.number, 0, 0};
            break;
        case Role::artifact:
            return {Kind::artifact, 0, 0, 0};
        case Role::label:
        case Role::itemBody:
            break;
        }
    }
    if (block == none)
        return {Kind::unknown, 0, 0, 0};
    tag.element = chain[block]->number;
    if (tag.kind == Kind::heading && tag.level == 0)
        tag.level = std::clamp(sections, 1, PDFTag::deepestLevel);
    return tag;
}

// What is known while a page's marks are looked up.
class PDFStructure::Page {
public:
    Page(PDFStructure& structure, pdf_obj* page, const fz_matrix& toDisplay)
        : iStructure(structure), iEngine(structure.iEngine), iPage(page), iToDisplay(toDisplay) {}

    PageTags tagsOf(std::vector<MarkedContent::Mark>& marks);

private:
    int elementOf(const MarkedContent::Mark& mark);
    int placeIn(int element, const MarkedContent::Mark& mark);
    void replace(MarkedContent::Mark& mark, const Chain& chain);
    void noteFigure(const MarkedContent::Mark& mark, const Chain& chain);
    fz_rect boxOf(int figure) const;

    using Kids = std::map<std::pair<int, int>, int>; // places by stream and mark
    struct Figure {
        QString text;
        fz_rect box = fz_empty_rect; // of its attributes
        fz_rect images = fz_empty_rect;
    };

    PDFStructure& iStructure;
    const PDFEngine& iEngine;
    pdf_obj* iPage;
    fz_matrix iToDisplay;
    std::map<int, std::vector<int>> iParents; // by stream: the elements of its marks
    std::unordered_map<int, Kids> iKids;
    std::size_t iCounted = 0; // in both
    std::unordered_map<int, bool> iReplaced;
    std::map<int, Figure> iFigures;
};

// 0 for none.
int PDFStructure::Page::elementOf(const MarkedContent::Mark& mark) {
    const auto [found, isNew] = iParents.try_emplace(mark.stream);
    std::vector<int>& elements = found->second;
    if (isNew) {
        const int key = mark.stream == 0
                            ? Kept(iEngine, iPage).entry("StructParents").integer()
                            : Kept(iEngine, mark.stream).entry("StructParents").integer();
        const Kept tree = Kept(iEngine, iStructure.iRoot).entry("ParentTree");
        const Kept list(iEngine, iEngine.object([&](fz_context* ctx) {
            return key < 0 ? nullptr : pdf_lookup_number(ctx, tree.get(), key);
        }));
        const int count = list.length();
        for (int i = 0; i < count && iCounted < maxChildren; ++i, ++iCounted)
            elements.push_back(list.at(i).number());
    }
    return std::size_t(mark.id) < elements.size() ? elements[std::size_t(mark.id)] : 0;
}

// Among the children of its element; 0 where that does not have it.
int PDFStructure::Page::placeIn(int element, const MarkedContent::Mark& mark) {
    const auto [found, isNew] = iKids.try_emplace(element);
    if (isNew) {
        const Kept list = Kept(iEngine, element).entry("K");
        const int count = list.length();
        for (int i = 0; i < count && iCounted < maxChildren; ++i, ++iCounted) {
            const Kept kid = list.at(i);
            const int plain = kid.integer();
            const int id = plain >= 0 ? plain : kid.entry("MCID").integer();
            if (id >= 0)
                found->second.emplace(std::pair(kid.entry("Stm").number(), id), i);
        }
    }
    const auto place = found->second.find({mark.stream, mark.id});
    return place == found->second.end() ? 0 : place->second;
}

// What an element stands for takes the place of all that it has on the page.
void PDFStructure::Page::replace(MarkedContent::Mark& mark, const Chain& chain) {
    for (const Element* element : chain) {
        if (element->role != Role::within)
            return;
        if (element->replacement.isNull())
            continue;
        mark.replacement = iReplaced.emplace(element->number, true).second ? element->replacement
                                                                           : QStringLiteral("");
        return;
    }
}

fz_rect PDFStructure::Page::boxOf(int figure) const {
    constexpr int mostLists = 16;
    const Kept attributes = Kept(iEngine, figure).entry("A");
    const int lists = std::min(attributes.length(), mostLists);
    for (int i = -1; i < lists; ++i) {
        const Kept box = (i < 0 ? Kept(iEngine, attributes.get()) : attributes.at(i)).entry("BBox");
        if (box.length() == 4)
            return fz_transform_rect(
                iEngine.get([&](fz_context* ctx) { return pdf_to_rect(ctx, box.get()); },
                            fz_empty_rect),
                iToDisplay);
    }
    return fz_empty_rect;
}

void PDFStructure::Page::noteFigure(const MarkedContent::Mark& mark, const Chain& chain) {
    const auto element = std::find_if(
        chain.begin(), chain.end(), [](const Element* each) { return each->role == Role::figure; });
    if (element == chain.end())
        return;
    const int number = (*element)->number;
    if (!iFigures.contains(number)) {
        if (iFigures.size() >= maxAlternatives)
            return;
        iFigures[number] = {Kept(iEngine, number).entry("Alt").text().left(maxAlternative),
                            boxOf(number), fz_empty_rect};
    }
    iFigures[number].images = fz_union_rect(iFigures[number].images, mark.images);
}

PDFStructure::PageTags PDFStructure::Page::tagsOf(std::vector<MarkedContent::Mark>& marks) {
    std::vector<Place> places;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        MarkedContent::Mark& mark = marks[i];
        if (mark.isArtifact) {
            places.push_back({i, {}, {PDFTag::Kind::artifact, 0, 0, 0}});
            continue;
        }
        const int number = mark.id >= 0 ? elementOf(mark) : 0;
        const Chain chain = iStructure.chainOf(number > 0 ? number : iStructure.iRoot);
        if (chain.empty())
            continue;
        std::vector<int> path;
        std::transform(chain.rbegin(), chain.rend(), std::back_inserter(path),
                       [](const Element* element) { return element->index; });
        path.push_back(placeIn(number, mark));
        places.push_back({i, std::move(path), tagFrom(chain)});
        if (mark.replacement.isNull())
            replace(mark, chain);
        noteFigure(mark, chain);
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const Place& a, const Place& b) { return a.path < b.path; });
    PageTags found;
    found.ofMarks.assign(marks.size(), -1);
    const Place* before = nullptr;
    for (const Place& place : places) {
        if (!before || before->path != place.path)
            found.tags.push_back(place.tag);
        found.ofMarks[place.mark] = int(found.tags.size()) - 1;
        before = &place;
    }
    for (const auto& [number, figure] : iFigures) {
        const fz_rect box = fz_is_empty_rect(figure.box) ? figure.images : figure.box;
        if (!figure.text.isEmpty() && !fz_is_empty_rect(box) && std::isfinite(box.x0) &&
            std::isfinite(box.y0) && std::isfinite(box.x1) && std::isfinite(box.y1))
            found.alternatives.push_back(
                {QRectF(box.x0, box.y0, double(box.x1) - box.x0, double(box.y1) - box.y0),
                 figure.text});
    }
    return found;
}

PDFStructure::PageTags PDFStructure::tagsOf(pdf_obj* page, std::vector<MarkedContent::Mark>& marks,
                                            const fz_matrix& toDisplay) {
    return Page(*this, page, toDisplay).tagsOf(marks);
}
