#include "template/NumberRange.h"

#include "template/FlashTemplateProperty.h"

#include <QRegularExpression>

NumberRange NumberRange::of(const FlashTemplateProperty& property) {
    static const QRegularExpression form(
        QStringLiteral("^(-?[0-9.]+)\\.\\.(-?[0-9.]+)(?: (\\S+))?$"));
    const auto match = form.match(property.valueSource());
    NumberRange range;
    if (property.propertyType() != pt_number || !match.hasMatch())
        return range;
    range.least = match.captured(1).toDouble();
    range.most = match.captured(2).toDouble();
    range.unit = match.captured(3);
    return range;
}
