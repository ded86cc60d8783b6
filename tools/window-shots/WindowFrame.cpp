#include "window-shots/WindowFrame.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int barHeight = 36;
constexpr int shadowRoom = 28;
constexpr int shadowDrop = 6;
constexpr double radius = 9;
constexpr double crossArm = 4.5;

QImage canvas(const QSizeF& size, double ratio) {
    QImage image((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

void drawShadow(QPainter& painter, const QRectF& box) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(12, 16, 24, 7));
    for (int spread = shadowRoom - shadowDrop; spread > 0; spread -= 2)
        painter.drawRoundedRect(
            box.translated(0, shadowDrop).adjusted(-spread, -spread, spread, spread),
            radius + spread, radius + spread);
}

void drawBar(QPainter& painter, const QRectF& bar, const QString& title, bool isDark) {
    const QColor ink(isDark ? "#dfe1e5" : "#33383f");
    painter.fillRect(bar, QColor(isDark ? "#1a1b1e" : "#e3e5e9"));
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(bar, Qt::AlignCenter, title);
    const QPointF middle(bar.right() - barHeight / 2.0, bar.center().y());
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-crossArm, crossArm})
        painter.drawLine(middle + QPointF(-crossArm, side), middle + QPointF(crossArm, -side));
}

} // namespace

QImage WindowFrame::framed(const QImage& content, const QString& title, bool isDark) {
    const QSizeF inner = content.deviceIndependentSize();
    const QRectF box(shadowRoom, shadowRoom, inner.width(), inner.height() + barHeight);
    QImage image =
        canvas(box.size() + QSizeF(2 * shadowRoom, 2 * shadowRoom), content.devicePixelRatio());
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    drawShadow(painter, box);
    QPainterPath outline;
    outline.addRoundedRect(box, radius, radius);
    painter.setClipPath(outline);
    drawBar(painter, {box.topLeft(), QSizeF(box.width(), barHeight)}, title, isDark);
    painter.drawImage(box.topLeft() + QPointF(0, barHeight), content);
    painter.setClipping(false);
    painter.setPen(QPen(QColor(0, 0, 0, isDark ? 150 : 60), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    return image;
}

QImage WindowFrame::withSheet(const QImage& content, const QImage& framedSheet) {
    QImage image = content;
    const QSizeF room = content.deviceIndependentSize() - framedSheet.deviceIndependentSize();
    QPainter painter(&image);
    painter.fillRect(QRectF(QPointF(), content.deviceIndependentSize()), QColor(0, 0, 0, 56));
    painter.drawImage(QPointF(qRound(room.width() / 2), qRound(room.height() / 2)), framedSheet);
    return image;
}
