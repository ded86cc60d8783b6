#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace pugi {
class xml_node;
}

// Types of template properties. The numbers are part of the file format.
enum FlashTemplatePropertyType : int {
    pt_text = 0,
    pt_number = 1,
    pt_color = 2,
    pt_list = 3,
    pt_composite = 4,
    pt_file = 5,
    pt_list_fromFunction = 6,
    pt_form_security = 7,
    pt_font = 8,
    pt_form_contactabout = 9,
    pt_bool = 10,
};

// A node of a template's property tree: a key, the editor's texts, the value as text, and child
// nodes.
class FlashTemplateProperty {
public:
    // Nesting limit of properties in a template file; the top level is 1. Code throughout the
    // program walks the tree recursively; the limit keeps a malicious file from exhausting the
    // stack.
    static constexpr int maximumDepth = 200;

    FlashTemplateProperty() = default;

    // Fills the node and its children from a "property" element; a null element or one of another
    // name changes nothing. Throws PlatformException when one of the six required child elements is
    // missing or the nesting exceeds maximumDepth; the node is partly filled then.
    void loadFromNode(const pugi::xml_node& element);

    std::size_t childCount() const { return iChildProperties.size(); }

    // The parent node, not owned; nullptr at the top level.
    FlashTemplateProperty* parent() const { return iParent; }
    void setParent(FlashTemplateProperty* parent) { iParent = parent; }
    int propertyType() const { return iPropertyType; }
    void setPropertyType(int type) { iPropertyType = type; }
    QString key() const { return iKey; }
    void setKey(const QString& key) { iKey = key; }
    QString title() const { return iTitle; }
    void setTitle(const QString& title) { iTitle = title; }
    // Caption of the check box of a boolean node.
    QString aTitle() const { return iATitle; }
    void setATitle(const QString& title) { iATitle = title; }
    QString desc() const { return iDesc; }
    void setDesc(const QString& text) { iDesc = text; }
    QString value() const { return iValue; }
    void setValue(const QString& value) { iValue = value; }
    // Choices of a list (separated by ",") or the filter of a file ("Label|*.ext;*.ext").
    QString valueSource() const { return iValueSource; }
    void setValueSource(const QString& source) { iValueSource = source; }
    QString defaultValue() const { return iDefaultValue; }
    void setDefaultValue(const QString& value) { iDefaultValue = value; }
    bool readOnly() const { return iReadOnly; }
    void setReadOnly(bool readOnly) { iReadOnly = readOnly; }

    using Children = std::vector<std::unique_ptr<FlashTemplateProperty>>;
    const Children& childProperties() const { return iChildProperties; }
    // Takes ownership and sets the children's parent.
    void setChildProperties(Children children);
    // Takes ownership and sets the child's parent.
    void addChildProperty(std::unique_ptr<FlashTemplateProperty> child);

private:
    void load(const pugi::xml_node& element, int depth);

    FlashTemplateProperty* iParent = nullptr;
    int iPropertyType = pt_text;
    QString iKey;
    QString iTitle = QStringLiteral("Empty");
    QString iATitle;
    QString iDesc;
    QString iValue;
    QString iValueSource;
    QString iDefaultValue;
    Children iChildProperties;
    bool iReadOnly = false;
};

namespace StringUtil {

// The enumeration value of a type name of the template file; pt_text for any other text.
int flashTemplatePropertyTypeFromString(const QString& name);

// The type name of an enumeration value; a null text for any other number.
QString flashTemplatePropertyTypeName(int type);

// True for YES, SHOW, ENABLE and TRUE in any letter case.
bool valueAsBool(const QString& value);

} // namespace StringUtil
