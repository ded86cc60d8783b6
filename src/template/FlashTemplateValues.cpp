#include "base/Log.h"
#include "template/FlashTemplate.h"

namespace {

// A property without a key is never found, not even with an empty key.
bool hasKey(const FlashTemplateProperty& node, const QString& key) {
    const QString own = node.key();
    return own == key && !own.isNull() && !key.isNull();
}

} // namespace

QString FlashTemplate::propertyValueFor(const QString& key, const QString& defaultValue) const {
    for (const auto& node : iProperties) {
        const bool found = hasKey(*node, key);
        const QString value = found ? node->value() : propertyValueFor(*node, key);
        if (!value.isNull())
            return value;
        if (found)
            break;
    }
    return defaultValue;
}

bool FlashTemplate::isRightToLeft() const {
    return StringUtil::valueAsBool(
        propertyValueFor(QStringLiteral("RightToLeft"), QStringLiteral("NO")));
}

QString FlashTemplate::propertyValueFor(const FlashTemplateProperty& node,
                                        const QString& byKey) const {
    for (const auto& child : node.childProperties()) {
        const QString value =
            hasKey(*child, byKey) ? child->value() : propertyValueFor(*child, byKey);
        if (!value.isNull())
            return value;
    }
    return {};
}

void FlashTemplate::setPropertyValue(const QString& key, const QString& value) {
    for (const auto& node : iProperties) {
        if (hasKey(*node, key)) {
            node->setValue(node->propertyType() == pt_file ? valueAsFilePath(value) : value);
            return;
        }
        if (setPropertyValueAt(*node, key, value))
            return;
    }
}

bool FlashTemplate::setPropertyValueAt(FlashTemplateProperty& node, const QString& key,
                                       const QString& value) {
    for (const auto& child : node.childProperties()) {
        if (hasKey(*child, key)) {
            const bool isFile = child->propertyType() == pt_file;
            if (isFile)
                Log("FlashTemplate").debug(QStringLiteral("key 3[%1=%2]").arg(key, value));
            child->setValue(isFile ? valueAsFilePath(value) : value);
            return true;
        }
        if (setPropertyValueAt(*child, key, value))
            return true;
    }
    return false;
}
