#include "fuzz/Fuzz.h"
#include "support/TemplateLibrary.h"
#include "template/FlashTemplate.h"

#include <QMap>

namespace {

struct Kind {
    const char* key;
    int type;
};

constexpr Kind kinds[] = {{"title", pt_text},         {"pageWidth", pt_number},
                          {"pageHeight", pt_number},  {"backColor", pt_color},
                          {"language", pt_list},      {"sound", pt_bool},
                          {"innerBackImage", pt_file}};

constexpr char resourceMark[] = "STYLE_RESOURCE:";

// A library with the one template in it, which new templates load; a group in its middle.
class Library : public TemplateLibrary {
public:
    Library() {
        QString inner;
        for (const Kind& kind : kinds)
            inner = kind.type == pt_list ? propertyOf(kind, inner) : inner + propertyOf(kind, {});
        addTemplateFile(QStringLiteral("float"), templateXML(inner).toUtf8());
    }
    QString exportPath() const { return path() + QStringLiteral("/settings.txt"); }

private:
    static QString propertyOf(const Kind& kind, const QString& children) {
        return property(QString::fromLatin1(kind.key), {},
                        StringUtil::flashTemplatePropertyTypeName(kind.type), children);
    }
};

QMap<QString, QString> valuesOf(const FlashTemplate& tmpl) {
    QMap<QString, QString> values;
    for (const Kind& kind : kinds) {
        const QString key = QString::fromLatin1(kind.key);
        const QString value = tmpl.propertyValueFor(key, QStringLiteral("?"));
        // A half of a surrogate pair cannot be written.
        values[key] = QString::fromUtf8(value.toUtf8());
        // A path that still names a style's resource is resolved once more.
        if (kind.type == pt_file && value.contains(QLatin1StringView(resourceMark)))
            values.remove(key);
    }
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Library library;
    static Fuzz::MemoryFile file;
    file.write(data, size);

    FlashTemplate tmpl;
    Fuzz::require(tmpl.loadError().isNull(), "the template loads");
    tmpl.setPropertyValue(QStringLiteral("pageWidth"), QStringLiteral("123"));
    tmpl.importPropertiesSettingsFrom(file.path());
    Fuzz::require(tmpl.propertyValueFor(QStringLiteral("pageWidth"), {}) == QStringLiteral("123"),
                  "settings leave the size of the page alone");
    Fuzz::require(tmpl.exportPropertiesSettingsTo(library.exportPath()), "settings are written");

    FlashTemplate copy;
    copy.setPropertyValue(QStringLiteral("pageWidth"), QStringLiteral("123"));
    copy.importPropertiesSettingsFrom(library.exportPath());
    const auto values = valuesOf(tmpl);
    const auto copied = valuesOf(copy);
    for (auto entry = values.begin(); entry != values.end(); ++entry)
        Fuzz::require(copied.value(entry.key()) == entry.value(), "written settings read the same");
    return 0;
}
