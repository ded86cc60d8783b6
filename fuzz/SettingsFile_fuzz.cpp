#include "Fuzz.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <map>

namespace {

// Keys and types.
constexpr std::pair<const char*, int> kinds[] = {
    {"title", pt_text},         {"pageWidth", pt_number}, {"pageHeight", pt_number},
    {"backColor", pt_color},    {"language", pt_list},    {"sound", pt_bool},
    {"innerBackImage", pt_file}};

// A library with the one template in it, which new templates load; a group in its middle.
class Library : public TemplateLibrary {
public:
    Library() {
        QString inner;
        for (const auto& [key, type] : kinds) {
            const bool isGroup = type == pt_list;
            const QString own = property(key, {}, StringUtil::flashTemplatePropertyTypeName(type),
                                         isGroup ? inner : QString());
            inner = isGroup ? own : inner + own;
        }
        addTemplateFile("float", templateXML(inner).toUtf8());
    }
    QString exportPath() const { return path() + "/settings.txt"; }
};

std::map<QString, QString> valuesOf(const FlashTemplate& tmpl) {
    std::map<QString, QString> values;
    for (const auto& [key, type] : kinds) {
        const QString value = tmpl.propertyValueFor(key, "?");
        // A half of a surrogate pair cannot be written.
        values[key] = QString::fromUtf8(value.toUtf8());
        // A path that still names a style's resource is resolved once more.
        if (type == pt_file && value.contains("STYLE_RESOURCE:"))
            values.erase(key);
    }
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Library library;
    FlashTemplate tmpl;
    Fuzz::require(tmpl.loadError().isNull(), "the template loads");
    tmpl.setPropertyValue("pageWidth", "123");
    tmpl.importPropertiesSettingsFrom(Fuzz::fileWith(Fuzz::Input(data, size).rest()));
    Fuzz::require(tmpl.propertyValueFor("pageWidth", {}) == "123",
                  "settings leave the size of the page alone");
    Fuzz::require(tmpl.exportPropertiesSettingsTo(library.exportPath()), "settings are written");

    FlashTemplate copy;
    copy.setPropertyValue("pageWidth", "123");
    copy.importPropertiesSettingsFrom(library.exportPath());
    auto copied = valuesOf(copy);
    for (const auto& [key, value] : valuesOf(tmpl))
        Fuzz::require(copied[key] == value, "written settings read the same");
    return 0;
}
