#include "Fuzz.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"
#include "template/XMLRepair.h"

namespace {

void checkTree(const FlashTemplate& tmpl, const FlashTemplateProperty& node, int depth) {
    Fuzz::require(depth <= FlashTemplateProperty::maximumDepth, "no property lies too deep");
    Fuzz::require(node.propertyType() >= pt_text && node.propertyType() <= pt_bool,
                  "every property has a type");
    Fuzz::require(node.key().isNull() || !tmpl.propertyValueFor(node.key(), {}).isNull(),
                  "a value is found by its key");
    for (const auto& child : node.childProperties()) {
        Fuzz::require(child->parent() == &node, "every property knows the one above");
        checkTree(tmpl, *child, depth + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static TemplateLibrary library;
    const QByteArray text = Fuzz::Input(data, size).rest();
    library.addTemplateFile("float", text);
    const FlashTemplate tmpl;
    for (const auto& node : tmpl.properties())
        checkTree(tmpl, *node, 1);
    if (!tmpl.loadError().isNull())
        return 0;
    // The repair is not asked for where a document is sound; it has to bear that all the same.
    Fuzz::require(XMLRepair::repaired(text).size() <= 64 * text.size() + 4096,
                  "repairing adds little");
    return 0;
}
