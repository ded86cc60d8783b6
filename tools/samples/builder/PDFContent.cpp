#include "builder/PDFContent.h"

namespace {

QByteArray number(double value) {
    return QByteArray::number(value, 'g', 8) + " ";
}

QByteArray rectOperands(const QRectF& rect) {
    return number(rect.x()) + number(rect.y()) + number(rect.width()) + number(rect.height());
}

} // namespace

QByteArray PDFContent::text(const QByteArray& font, double size, QPointF baseline,
                            const QByteArray& text) {
    QByteArray escaped;
    for (const char c : text) {
        if (c == '(' || c == ')' || c == '\\')
            escaped += '\\';
        escaped += c;
    }
    return "BT /" + font + " " + number(size) + "Tf " + number(baseline.x()) +
           number(baseline.y()) + "Td (" + escaped + ") Tj ET\n";
}

QByteArray PDFContent::fillColor(const QColor& color) {
    return number(color.redF()) + number(color.greenF()) + number(color.blueF()) + "rg\n";
}

QByteArray PDFContent::fillRect(const QRectF& rect) {
    return rectOperands(rect) + "re f\n";
}

QByteArray PDFContent::strokeRect(const QRectF& rect, double lineWidth) {
    return number(lineWidth) + "w " + rectOperands(rect) + "re S\n";
}

QByteArray PDFContent::image(const QByteArray& name, const QRectF& rect) {
    return "q " + number(rect.width()) + "0 0 " + number(rect.height()) + number(rect.x()) +
           number(rect.y()) + "cm /" + name + " Do Q\n";
}

QByteArray PDFContent::form(const QByteArray& name) {
    return "/" + name + " Do\n";
}
