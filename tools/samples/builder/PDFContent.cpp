#include "builder/PDFContent.h"

namespace {

QByteArray operand(double value) {
    return QByteArray::number(value, 'g', 8) + " ";
}

QByteArray rectOperands(const QRectF& rect) {
    return operand(rect.x()) + operand(rect.y()) + operand(rect.width()) + operand(rect.height());
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
    return "BT /" + font + " " + operand(size) + "Tf " + operand(baseline.x()) +
           operand(baseline.y()) + "Td (" + escaped + ") Tj ET\n";
}

QByteArray PDFContent::fillColor(const QColor& color) {
    return operand(color.redF()) + operand(color.greenF()) + operand(color.blueF()) + "rg\n";
}

QByteArray PDFContent::fillRect(const QRectF& rect) {
    return rectOperands(rect) + "re f\n";
}

QByteArray PDFContent::strokeRect(const QRectF& rect, double lineWidth) {
    return operand(lineWidth) + "w " + rectOperands(rect) + "re S\n";
}

QByteArray PDFContent::image(const QByteArray& name, const QRectF& rect) {
    return "q " + operand(rect.width()) + "0 0 " + operand(rect.height()) + operand(rect.x()) +
           operand(rect.y()) + "cm /" + name + " Do Q\n";
}

QByteArray PDFContent::form(const QByteArray& name) {
    return "/" + name + " Do\n";
}
