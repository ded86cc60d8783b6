#include "annotations/FlashOutline.h"
#include "fuzz/Fuzz.h"
#include "platform/PlatformException.h"

#include <sstream>

namespace {

std::string written(const FlashOutline& outline) {
    std::ostringstream text;
    outline.outlineAsXMLNode()->save(text, "", pugi::format_raw);
    return text.str();
}

pugi::xml_parse_result parse(pugi::xml_document& document, const void* data, std::size_t size) {
    return document.load_buffer(data, size, pugi::parse_default | pugi::parse_ws_pcdata);
}

void checkLevel(const FlashOutline::Items& items, const FlashOutlineItem* parent, int depth) {
    Fuzz::require(items.empty() || depth <= FlashOutlineItem::maximumDepth,
                  "no entry lies deeper than the limit");
    for (const auto& item : items) {
        Fuzz::require(item->parent() == parent, "every entry knows the one above");
        checkLevel(item->childItems(), item.get(), depth + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    pugi::xml_document document;
    if (!parse(document, data, size))
        return 0;
    FlashOutline outline;
    try {
        outline.loadFromXMLNode(document.document_element());
    } catch (const PlatformException&) {
        return 0;
    }
    checkLevel(outline.items(), nullptr, 1);

    FlashOutline copy;
    copy.loadFromXMLNode(outline.outlineAsXMLNode()->document_element());
    const std::string text = written(outline);
    Fuzz::require(written(copy) == text, "an element that was made reads the same");

    pugi::xml_document again;
    Fuzz::require(parse(again, text.data(), text.size()), "its text is well-formed");
    copy.loadFromXMLNode(again.document_element());
    // A text read from XML has no carriage returns but those that stood there as references.
    Fuzz::require(written(copy) == text || text.find('\r') != std::string::npos,
                  "its text reads the same");
    return 0;
}
