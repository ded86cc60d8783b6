#include "template/FlashTemplateProperty.h"

#include "base/PlatformException.h"
#include "template/TemplateFile.h"
#include "util/XMLText.h"

#include <algorithm>
#include <array>
#include <pugixml.hpp>
#include <string_view>

namespace {

Message describe(const pugi::xml_node& element) {
    const pugi::xml_node key = element.child("key");
    if (!key)
        return Message::translate("TemplateFile", "\"property\" element");
    return Message::translate("TemplateFile", "\"property\" element of key \"%1\"")
        .arg(XMLText::textOf(key));
}

QString requiredText(const pugi::xml_node& element, const char* name) {
    return TemplateFile::requiredText(element, name, [&] { return describe(element); });
}

// In enum order.
constexpr std::array<QLatin1StringView, 11> typeNames{
    QLatin1StringView("pt_text"),
    QLatin1StringView("pt_number"),
    QLatin1StringView("pt_color"),
    QLatin1StringView("pt_list"),
    QLatin1StringView("pt_composite"),
    QLatin1StringView("pt_file"),
    QLatin1StringView("pt_list_fromFunction"),
    QLatin1StringView("pt_form_security"),
    QLatin1StringView("pt_font"),
    QLatin1StringView("pt_form_contactabout"),
    QLatin1StringView("pt_bool"),
};

} // namespace

void FlashTemplateProperty::loadFromNode(const pugi::xml_node& element) {
    load(element, 1);
}

void FlashTemplateProperty::load(const pugi::xml_node& element, int depth) {
    if (std::string_view(element.name()) != "property")
        return;
    if (depth > maximumDepth)
        throw PlatformException(
            ErrorKind::templateProperty,
            Message::translate("TemplateFile", "properties are nested more than %1 deep")
                .arg(QString::number(maximumDepth)));
    iParent = nullptr;
    iKey = requiredText(element, "key");
    iTitle = requiredText(element, "title");
    iDesc = requiredText(element, "desc");
    iValue = requiredText(element, "value");
    iValueSource = requiredText(element, "valueSource");
    iDefaultValue = requiredText(element, "defaultValue");
    const pugi::xml_node caption = element.child("aTitle");
    iATitle = caption ? XMLText::textOf(caption) : QStringLiteral("");
    iPropertyType = StringUtil::flashTemplatePropertyTypeFromString(
        QString::fromUtf8(element.attribute("type").value()));
    // The mere presence of this attribute marks a boolean.
    if (element.attribute("aType"))
        iPropertyType = pt_bool;

    setChildProperties({});
    for (const pugi::xml_node& node : element.child("childProperties").children("property")) {
        auto child = std::make_unique<FlashTemplateProperty>();
        child->load(node, depth + 1);
        addChildProperty(std::move(child));
    }
}

void FlashTemplateProperty::setChildProperties(Children children) {
    for (const auto& child : children)
        child->setParent(this);
    iChildProperties = std::move(children);
}

void FlashTemplateProperty::addChildProperty(std::unique_ptr<FlashTemplateProperty> child) {
    child->setParent(this);
    iChildProperties.push_back(std::move(child));
}

int StringUtil::flashTemplatePropertyTypeFromString(const QString& name) {
    const auto found = std::find(typeNames.begin(), typeNames.end(), name);
    return found == typeNames.end() ? pt_text : static_cast<int>(found - typeNames.begin());
}

QString StringUtil::flashTemplatePropertyTypeName(int type) {
    return type >= 0 && type < int(typeNames.size()) ? QString(typeNames[std::size_t(type)])
                                                     : QString();
}

bool StringUtil::valueAsBool(const QString& value) {
    const QString upper = value.toUpper();
    return upper == u"YES" || upper == u"SHOW" || upper == u"ENABLE" || upper == u"TRUE";
}
