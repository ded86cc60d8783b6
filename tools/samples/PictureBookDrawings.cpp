#include "PictureBookDrawings.h"

#include "BookStyle.h"
#include <QPainterPath>
#include <cmath>
#include <random>

namespace {

// Numbers that only look random; one seed gives one row of them.
class Dice {
public:
    explicit Dice(unsigned seed) : iRandom(seed) {}
    int below(int bound) { return static_cast<int>(iRandom() % static_cast<unsigned>(bound)); }

private:
    std::mt19937 iRandom;
};

QPainterPath polygon(std::initializer_list<QPointF> points) {
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
    return path;
}

void fill(QPainter& painter, const QPainterPath& path, const QBrush& brush) {
    painter.fillPath(path, brush);
}

void disc(QPainter& painter, QPointF middle, double radius, const QBrush& brush) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(middle, radius, radius);
}

// Light that fades outwards; in rings, because a gradient in a PDF made here cannot be transparent.
void glow(QPainter& painter, QPointF middle, double radius) {
    constexpr int kRings = 16;
    for (int ring = kRings; ring > 0; --ring)
        disc(painter, middle, radius * ring / kRings, QColor(255, 204, 104, 5 + (kRings - ring)));
}

} // namespace

void PictureBookDrawings::sky(QPainter& painter, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(0, 0, 0, kPage.height());
    gradient.setColorAt(0, top);
    gradient.setColorAt(0.8, bottom);
    painter.fillRect(kPage, gradient);
}

void PictureBookDrawings::stars(QPainter& painter, unsigned seed, int count, double bottom) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const double x = dice.below(576);
        const double y = dice.below(static_cast<int>(bottom));
        disc(painter, {x, y}, 0.8 + dice.below(20) / 12.0, QColor(255, 246, 214, 210));
    }
}

void PictureBookDrawings::moon(QPainter& painter, QPointF middle, double radius) {
    for (int ring = 3; ring > 0; --ring)
        disc(painter, middle, radius * (1 + 0.45 * ring), QColor(255, 240, 200, 22));
    disc(painter, middle, radius, QColor(255, 244, 214));
    disc(painter, middle + QPointF(-radius * 0.3, -radius * 0.2), radius * 0.17,
         QColor(238, 222, 184));
    disc(painter, middle + QPointF(radius * 0.28, radius * 0.3), radius * 0.24,
         QColor(238, 222, 184));
}

void PictureBookDrawings::hill(QPainter& painter, double base, double height, double phase,
                               const QColor& color) {
    QPainterPath path(kPage.bottomLeft());
    for (double x = 0; x <= kPage.width(); x += 8)
        path.lineTo(x,
                    base - height * (std::sin(x / 120 + phase) + 0.3 * std::sin(x / 43 + phase)));
    path.lineTo(kPage.bottomRight());
    fill(painter, path, color);
}

void PictureBookDrawings::pines(QPainter& painter, unsigned seed, double foot, double height,
                                const QColor& color) {
    Dice dice(seed);
    for (double x = -10; x < 590; x += height * (0.16 + dice.below(100) / 500.0)) {
        const double tall = height * (0.7 + dice.below(100) / 250.0);
        for (int tier = 0; tier < 4; ++tier) {
            const double top = foot - tall + tier * tall * 0.21;
            const double half = tall * (0.1 + 0.045 * tier);
            fill(painter,
                 polygon({{x, top}, {x + half, top + tall * 0.34}, {x - half, top + tall * 0.34}}),
                 color);
        }
        painter.fillRect(QRectF(x - tall * 0.02, foot - tall * 0.05, tall * 0.04, tall * 0.07),
                         color);
    }
}

void PictureBookDrawings::street(QPainter& painter, double foot, int lit, const QColor& wall) {
    Dice dice(3);
    double x = -20;
    for (int house = 0; x < 580; ++house) {
        const double width = 84 + dice.below(40);
        const double height = 130 + dice.below(90);
        const QColor front = house % 2 == 0 ? wall : wall.darker(116);
        painter.fillRect(QRectF(x, foot - height, width, height), front);
        fill(painter,
             polygon({{x - 6, foot - height},
                      {x + width / 2, foot - height - 56},
                      {x + width + 6, foot - height}}),
             wall.darker(165));
        for (int window = 0; window < 2; ++window) {
            const QRectF pane(x + width * (0.18 + 0.4 * window), foot - height + 28, 20, 28);
            const bool shining = house == lit && window == 0;
            if (shining) {
                glow(painter, pane.center(), 70);
            }
            painter.fillRect(pane, shining ? kGlow : wall.darker(190));
            painter.fillRect(QRectF(pane.center().x() - 1, pane.top(), 2, pane.height()), front);
        }
        painter.fillRect(QRectF(x + width * 0.38, foot - 50, 24, 50), wall.darker(200));
        x += width + 2;
    }
}

void PictureBookDrawings::sea(QPainter& painter, double horizon, const QColor& far,
                              const QColor& near) {
    QLinearGradient gradient(0, horizon, 0, kPage.bottom());
    gradient.setColorAt(0, far);
    gradient.setColorAt(1, near);
    painter.fillRect(QRectF(0, horizon, kPage.width(), kPage.height() - horizon), gradient);
    for (int row = 0; row < 5; ++row) {
        const double y = horizon + 26 + row * row * 9 + row * 14;
        QPainterPath wave(QPointF(-20, y));
        for (double x = -20; x < 600; x += 48 + row * 10) {
            const double step = 48 + row * 10;
            wave.cubicTo(x + step * 0.3, y - 6 - row, x + step * 0.7, y + 6 + row, x + step, y);
        }
        painter.setPen(QPen(QColor(255, 255, 255, 46), 1.5 + row * 0.6));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(wave);
    }
}

void PictureBookDrawings::boat(QPainter& painter, QPointF waterline, double scale) {
    painter.save();
    painter.translate(waterline);
    painter.scale(scale, scale);
    fill(painter, polygon({{-58, -18}, {62, -18}, {40, 12}, {-40, 12}}), QColor(196, 78, 56));
    painter.fillRect(QRectF(-58, -18, 120, 5), QColor(255, 238, 208));
    painter.fillRect(QRectF(-2, -118, 4, 102), QColor(76, 52, 44));
    fill(painter, polygon({{6, -114}, {58, -28}, {6, -28}}), kCream);
    fill(painter, polygon({{-6, -100}, {-6, -28}, {-44, -28}}), QColor(236, 220, 186));
    painter.restore();
}

void PictureBookDrawings::doorway(QPainter& painter, const QColor& wall) {
    painter.fillRect(kPage, wall);
    painter.setPen(Qt::NoPen);
    Dice dice(8);
    for (int row = 0; row < 12; ++row)
        for (int stone = -1; stone < 8; ++stone)
            if (dice.below(4) == 0) {
                painter.setBrush(wall.darker(106));
                painter.drawRoundedRect(QRectF(stone * 84 + (row % 2) * 42, row * 44, 78, 38), 5,
                                        5);
            }
    QPainterPath arch(QPointF(96, 432));
    arch.lineTo(96, 190);
    arch.cubicTo(96, 60, 264, 60, 264, 190);
    arch.lineTo(264, 432);
    fill(painter, arch, wall.darker(170));
    painter.save();
    painter.setClipPath(arch);
    for (int board = 0; board < 4; ++board)
        painter.fillRect(QRectF(108 + board * 37, 60, 33, 380), QColor(150, 66, 52));
    painter.restore();
    disc(painter, {242, 290}, 7, kGlow);
    for (int step = 0; step < 3; ++step)
        painter.fillRect(QRectF(74 - step * 26, 432 + step * 34, 212 + step * 52, 34),
                         wall.darker(120 + step * 12));
    painter.fillRect(QRectF(0, 534, 576, 42), wall.darker(190));
    painter.setPen(QPen(QColor(52, 44, 48), 7, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath hook(QPointF(420, 112));
    hook.cubicTo(420, 60, 360, 60, 360, 112);
    painter.drawPath(hook);
    painter.drawLine(QPointF(420, 112), QPointF(420, 150));
}

void PictureBookDrawings::cat(QPainter& painter, QPointF foot, double scale) {
    painter.save();
    painter.translate(foot);
    painter.scale(scale, scale);
    const QColor fur(38, 34, 48);
    QPainterPath body(QPointF(-42, 0));
    body.cubicTo(-52, -70, -20, -96, 4, -96);
    body.cubicTo(40, -90, 44, -30, 40, 0);
    fill(painter, body, fur);
    disc(painter, {0, -112}, 32, fur);
    fill(painter, polygon({{-30, -124}, {-26, -160}, {-6, -138}}), fur);
    fill(painter, polygon({{30, -124}, {26, -160}, {6, -138}}), fur);
    painter.setPen(QPen(fur, 12, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath tail(QPointF(34, -8));
    tail.cubicTo(90, -10, 60, -70, 92, -84);
    painter.drawPath(tail);
    painter.setPen(QPen(kGlow, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(-20, -120, 14, 10), 200 * 16, 140 * 16);
    painter.drawArc(QRectF(6, -120, 14, 10), 200 * 16, 140 * 16);
    painter.restore();
}

void PictureBookDrawings::eyes(QPainter& painter, QPointF middle, double size) {
    for (const int side : {-1, 1}) {
        disc(painter, middle + QPointF(side * size * 1.25, 0), size, QColor(255, 232, 150));
        disc(painter, middle + QPointF(side * size * 1.25, size * 0.1), size * 0.45,
             QColor(24, 20, 34));
    }
}

void PictureBookDrawings::owl(QPainter& painter, QPointF middle, double scale) {
    painter.save();
    painter.translate(middle);
    painter.scale(scale, scale);
    QPainterPath body;
    body.addRoundedRect(QRectF(-34, -46, 68, 96), 34, 34);
    fill(painter, body, QColor(120, 92, 82));
    fill(painter, polygon({{-34, -22}, {-32, -62}, {-8, -44}}), QColor(120, 92, 82));
    fill(painter, polygon({{34, -22}, {32, -62}, {8, -44}}), QColor(120, 92, 82));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(222, 196, 160));
    painter.drawEllipse(QRectF(-20, 0, 40, 46));
    eyes(painter, {0, -18}, 12);
    fill(painter, polygon({{-6, -8}, {6, -8}, {0, 4}}), QColor(240, 160, 70));
    painter.fillRect(QRectF(-70, 48, 140, 9), QColor(62, 44, 44));
    painter.restore();
}

void PictureBookDrawings::mushroom(QPainter& painter, QPointF foot, double scale,
                                   const QColor& cap) {
    painter.save();
    painter.translate(foot);
    painter.scale(scale, scale);
    QPainterPath stem(QPointF(-13, 0));
    stem.cubicTo(-7, -24, -8, -40, -9, -52);
    stem.lineTo(9, -52);
    stem.cubicTo(8, -40, 7, -24, 13, 0);
    fill(painter, stem, kCream);
    QPainterPath top(QPointF(-46, -46));
    top.cubicTo(-40, -104, 40, -104, 46, -46);
    top.cubicTo(20, -56, -20, -56, -46, -46);
    fill(painter, top, cap);
    disc(painter, {-16, -72}, 6, kCream);
    disc(painter, {10, -80}, 5, kCream);
    disc(painter, {24, -62}, 4, kCream);
    painter.restore();
}

void PictureBookDrawings::hedgehog(QPainter& painter, QPointF foot, double scale) {
    painter.save();
    painter.translate(foot);
    painter.scale(scale, scale);
    QPainterPath spines(QPointF(-54, 0));
    for (int i = 0; i <= 12; ++i) {
        const double angle = 3.1416 * (1 - i / 12.0);
        spines.lineTo(50 * std::cos(angle), -50 * std::sin(angle) - 4);
        spines.lineTo(64 * std::cos(angle - 0.13), -64 * std::sin(angle - 0.13) - 4);
    }
    spines.lineTo(50, 0);
    fill(painter, spines, QColor(88, 66, 60));
    QPainterPath face(QPointF(-30, 0));
    face.cubicTo(-40, -30, -60, -28, -84, -8);
    face.cubicTo(-80, 2, -50, 2, -30, 0);
    fill(painter, face, QColor(226, 190, 150));
    disc(painter, {-84, -8}, 5, QColor(40, 30, 36));
    disc(painter, {-58, -16}, 3.4, QColor(40, 30, 36));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(226, 190, 150));
    for (const double x : {-34.0, -8.0, 22.0})
        painter.drawEllipse(QRectF(x, -4, 18, 10));
    painter.restore();
}

void PictureBookDrawings::lantern(QPainter& painter, QPointF feet, double scale, bool walking) {
    painter.save();
    painter.translate(feet);
    painter.scale(scale, scale);
    glow(painter, {0, -66}, 190);
    const QColor brass(142, 84, 44);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(brass, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawArc(QRectF(-20, -142, 40, 44), 0, 180 * 16);
    const double stride = walking ? 12 : 3;
    painter.drawPolyline(QPolygonF({{-9, -30}, {-9 - stride, -2}, {-20 - stride, -2}}));
    painter.drawPolyline(QPolygonF({{9, -30}, {9 + stride * 0.5, -2}, {-2 + stride * 0.5, -2}}));
    QPainterPath glass(QPointF(-24, -100));
    glass.cubicTo(-44, -80, -40, -50, -24, -36);
    glass.lineTo(24, -36);
    glass.cubicTo(40, -50, 44, -80, 24, -100);
    glass.closeSubpath();
    fill(painter, glass, QColor(255, 238, 186));
    QPainterPath flame(QPointF(0, -94));
    flame.cubicTo(18, -72, 14, -46, 0, -42);
    flame.cubicTo(-14, -46, -18, -72, 0, -94);
    fill(painter, flame, QColor(250, 178, 66));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brass);
    painter.drawRoundedRect(QRectF(-30, -40, 60, 13), 4, 4);
    painter.drawRoundedRect(QRectF(-28, -108, 56, 11), 4, 4);
    fill(painter, polygon({{-24, -106}, {-12, -122}, {12, -122}, {24, -106}}), brass);
    disc(painter, {-13, -68}, 3.6, QColor(70, 40, 30));
    disc(painter, {9, -68}, 3.6, QColor(70, 40, 30));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(70, 40, 30), 2.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(-11, -66, 18, 14), 200 * 16, 140 * 16);
    painter.restore();
}

void PictureBookDrawings::caption(QPainter& painter, double y, const QString& text,
                                  const QColor& color) {
    painter.setFont(BookStyle::serif(23));
    painter.setPen(color);
    painter.drawText(QRectF(56, y, 464, 96), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     text);
}

void PictureBookDrawings::endpaper(QPainter& painter, const QColor& ground, const QColor& sign) {
    painter.fillRect(kPage, ground);
    for (int row = 0; row < 9; ++row)
        for (int column = -1; column < 9; ++column) {
            const QPointF at(column * 72 + (row % 2) * 36 + 36, row * 68 + 20);
            painter.setPen(QPen(sign, 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawArc(QRectF(at.x() - 7, at.y() - 20, 14, 16), 0, 180 * 16);
            painter.drawRoundedRect(QRectF(at.x() - 10, at.y() - 12, 20, 24), 6, 6);
            disc(painter, at, 4, sign);
        }
}
