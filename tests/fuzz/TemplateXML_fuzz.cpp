#include "fuzz/Fuzz.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"
#include "template/XMLRepair.h"

#include <QFile>

namespace {

// A library whose one template, which new templates load, is a file in memory.
class Library : public TemplateLibrary {
public:
    Library() {
        addTemplateFile(QStringLiteral("float"), {});
        const QString name =
            templatePath(QStringLiteral("float")) + QStringLiteral("/flashTemplate.xml");
        Fuzz::require(QFile::remove(name) && QFile::link(iFile.path(), name),
                      "the library can be made");
    }
    Fuzz::MemoryFile& file() { return iFile; }

private:
    Fuzz::MemoryFile iFile;
};

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

void checkRepair(const QByteArray& text) {
    const QByteArray repaired = XMLRepair::repaired(text);
    Fuzz::require(repaired.size() <= 64 * text.size() + 4096, "repairing adds little");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Library library;
    library.file().write(data, size);
    const FlashTemplate tmpl;
    for (const auto& node : tmpl.properties())
        checkTree(tmpl, *node, 1);
    if (!tmpl.loadError().isNull())
        return 0;
    // The repair is not asked for where a document is sound; it has to bear that all the same.
    checkRepair(Fuzz::Input(data, size).rest());
    return 0;
}
