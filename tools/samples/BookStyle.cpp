#include "BookStyle.h"

namespace {

QFont font(const QStringList& families, double size) {
    QFont result;
    result.setFamilies(families);
    result.setPointSizeF(size);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

} // namespace

QFont BookStyle::serif(double size, bool bold, bool italic) {
    QFont result = font({QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")}, size);
    result.setBold(bold);
    result.setItalic(italic);
    return result;
}

QFont BookStyle::sans(double size, bool bold) {
    QFont result = font({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")}, size);
    result.setBold(bold);
    return result;
}

QFont BookStyle::mono(double size) {
    return font({QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")}, size);
}
