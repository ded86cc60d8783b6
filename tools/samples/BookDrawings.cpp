#include "BookDrawings.h"

#include "BookStyle.h"
#include "BookText.h"
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <numbers>

using namespace BookStyle;

namespace {

QPainterPath hill(double base, double height, double phase) {
    QPainterPath path(QPointF(0, kPage.bottom()));
    for (double x = 0; x <= kPage.width(); x += 6)
        path.lineTo(x, base - height * (std::sin(x / 95 + phase) + 0.4 * std::sin(x / 31 + phase)));
    path.lineTo(kPage.bottomRight());
    path.closeSubpath();
    return path;
}

void dusk(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, kPage.height());
    sky.setColorAt(0, kNavy);
    sky.setColorAt(0.45, QColor(122, 72, 96));
    sky.setColorAt(0.72, kCoral);
    sky.setColorAt(1, kGold);
    painter.fillRect(kPage, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 232, 190));
    painter.drawEllipse(QPointF(286, 340), 38, 38);
    const QColor slopes[] = {QColor(96, 62, 92), QColor(66, 52, 86), QColor(42, 44, 76), kNavy};
    double base = 400;
    double phase = 0.6;
    for (const QColor& slope : slopes) {
        painter.setBrush(slope);
        painter.drawPath(hill(base, 18, phase));
        base += 36;
        phase += 1.9;
    }
}

// An open book seen from the front, one leaf standing up.
void openBook(QPainter& painter, QPointF spine, double scale) {
    painter.save();
    painter.translate(spine);
    painter.scale(scale, scale);
    const auto half = [](double direction, double tip) {
        QPainterPath path(QPointF(0, 0));
        path.cubicTo(direction * 25, -22, direction * 70, -20, direction * 100, tip);
        path.lineTo(direction * 100, tip - 62);
        path.cubicTo(direction * 70, -82, direction * 25, -84, 0, -62);
        path.closeSubpath();
        return path;
    };
    painter.setPen(QPen(kNavy, 1.2));
    painter.setBrush(kPaper);
    painter.drawPath(half(-1, -6));
    painter.drawPath(half(1, -6));
    QPainterPath leaf(QPointF(0, 0));
    leaf.cubicTo(12, -34, 30, -50, 62, -58);
    leaf.lineTo(56, -118);
    leaf.cubicTo(30, -112, 10, -94, 0, -62);
    leaf.closeSubpath();
    painter.setBrush(kSand);
    painter.drawPath(leaf);
    painter.restore();
}

void centred(QPainter& painter, double y, const QFont& font, const QString& text) {
    painter.setFont(font);
    painter.drawText(QRectF(0, y, kPage.width(), 80), Qt::AlignHCenter | Qt::AlignTop, text);
}

void arrow(QPainter& painter, QPointF from, QPointF to) {
    painter.setPen(QPen(kInk, 1.2));
    painter.drawLine(from, to);
    painter.setBrush(kInk);
    painter.drawPolygon(QPolygonF({to, to + QPointF(-4, -8), to + QPointF(4, -8)}));
}

void step(QPainter& painter, const QRectF& box, const QColor& color, const QString& title,
          const QString& words) {
    painter.setPen(QPen(color.darker(125), 1));
    painter.setBrush(color);
    painter.drawRoundedRect(box, 8, 8);
    painter.setPen(kPaper);
    painter.setFont(sans(13, true));
    painter.drawText(box.adjusted(14, 10, -14, 0), Qt::AlignLeft | Qt::AlignTop, title);
    painter.setFont(sans(9));
    painter.drawText(box.adjusted(14, 32, -14, -4), Qt::AlignLeft | Qt::TextWordWrap, words);
}

} // namespace

void BookDrawings::cover(QPainter& painter) {
    dusk(painter);
    openBook(painter, {210, 540}, 1.35);
    painter.setPen(kPaper);
    centred(painter, 84, serif(40, true), QStringLiteral("The Turning"));
    centred(painter, 130, serif(40, true), QStringLiteral("Page"));
    painter.setPen(QPen(kGold, 1.5));
    painter.drawLine(QPointF(160, 194), QPointF(260, 194));
    painter.setPen(kSand);
    centred(painter, 206, serif(13, false, true), BookText::kSubtitle);
}

void BookDrawings::backCover(QPainter& painter) {
    painter.fillRect(kPage, kNavy);
    openBook(painter, {210, 300}, 0.7);
    painter.setPen(kSand);
    centred(painter, 340, serif(12, false, true),
            QStringLiteral("Drawn, set and bound by the program\nthat also turned its pages."));
    painter.fillRect(QRectF(0, 560, kPage.width(), 35), kGold);
}

void BookDrawings::chapterHead(QPainter& painter, int number, const QString& title) {
    const QColor colors[] = {kCoral, kTeal, kGold, kNavy};
    const QColor color = colors[static_cast<size_t>(number - 1) % std::size(colors)];
    const QRectF strip(0, 0, kPage.width(), 150);
    QLinearGradient fill(strip.topLeft(), strip.bottomRight());
    fill.setColorAt(0, color);
    fill.setColorAt(1, color.darker(130));
    painter.fillRect(strip, fill);
    painter.save();
    painter.setClipRect(strip);
    painter.setPen(QPen(QColor(255, 255, 255, 60), 0.8));
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1; ring < 16; ++ring)
        painter.drawEllipse(QPointF(360, 20), ring * 14.0, ring * 14.0);
    painter.restore();
    painter.setPen(Qt::white);
    painter.setFont(serif(54, true));
    painter.drawText(QPointF(kTextBlock.left(), 86), QString::number(number));
    painter.setFont(serif(22, true));
    painter.drawText(QPointF(kTextBlock.left(), 124), title);
}

void BookDrawings::fromDocumentToBook(QPainter& painter, const QRectF& area) {
    const QRectF box(area.x(), area.y(), area.width(), 78);
    const double down = 112;
    step(painter, box, kCoral, QStringLiteral("Document"),
         QStringLiteral("Pages, links and bookmarks, as they were made."));
    step(painter, box.translated(0, down), kTeal, QStringLiteral("Pages"),
         QStringLiteral("Each drawn once, at twice its size, several at a time."));
    step(painter, box.translated(0, 2 * down), kGold.darker(115), QStringLiteral("Template"),
         QStringLiteral("Colours, titles, sounds and buttons; a preview shows every change."));
    step(painter, box.translated(0, 3 * down), kNavy, QStringLiteral("Book"),
         QStringLiteral("A folder that opens in any browser."));
    for (int i = 0; i < 3; ++i)
        arrow(painter, {box.center().x(), box.bottom() + i * down + 4},
              {box.center().x(), box.top() + (i + 1) * down - 2});
}

void BookDrawings::rosette(QPainter& painter, const QRectF& area) {
    painter.setBrush(Qt::NoBrush);
    const double radius = area.width() / 2;
    for (int strand = 0; strand < 6; ++strand) {
        QColor color = QColor::fromHsv(strand * 60, 190, 150);
        painter.setPen(QPen(color, 0.25));
        QPainterPath path;
        for (int i = 0; i <= 720; ++i) {
            const double t = i * std::numbers::pi / 60;
            const double r = radius * (0.52 + 0.48 * std::cos(t * 7 / 6 + strand * 0.17));
            const QPointF point = area.center() + QPointF(r * std::cos(t), r * std::sin(t));
            if (i == 0)
                path.moveTo(point);
            else
                path.lineTo(point);
        }
        painter.drawPath(path);
    }
}

void BookDrawings::colourWheel(QPainter& painter, const QRectF& area) {
    painter.setPen(Qt::NoPen);
    for (int hue = 0; hue < 360; hue += 5) {
        for (int ring = 0; ring < 5; ++ring) {
            painter.setBrush(QColor::fromHsv(hue, 255 - ring * 48, 235));
            const double inset = ring * area.width() / 14;
            painter.drawPie(area.adjusted(inset, inset, -inset, -inset), hue * 16, 5 * 16);
        }
    }
    painter.setBrush(kPaper);
    painter.drawEllipse(area.center(), area.width() / 7, area.width() / 7);
}

void BookDrawings::graySteps(QPainter& painter, const QRectF& area) {
    constexpr int kSteps = 16;
    const double width = area.width() / kSteps;
    for (int i = 0; i < kSteps; ++i) {
        const int gray = 255 * i / (kSteps - 1);
        painter.fillRect(QRectF(area.x() + i * width, area.y(), width, area.height()),
                         QColor(gray, gray, gray));
    }
    painter.setPen(QPen(kInk, 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
}

void BookDrawings::foldChart(QPainter& painter, const QRectF& area) {
    constexpr int kFolds = 6;
    const double column = area.width() / kFolds;
    painter.setFont(sans(9));
    for (int line = 0; line <= 4; ++line) {
        const double y = area.bottom() - line * area.height() / 4;
        painter.setPen(QPen(kSand.darker(110), 0.5));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(kInk);
        painter.drawText(QRectF(area.left() - 30, y - 8, 24, 16), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(line * 8));
    }
    for (int fold = 0; fold < kFolds; ++fold) {
        const double height = area.height() * (1 << fold) / 32;
        const QRectF bar(area.left() + fold * column + 9, area.bottom() - height, column - 18,
                         height);
        QLinearGradient fill(bar.topLeft(), bar.bottomLeft());
        fill.setColorAt(0, kCoral);
        fill.setColorAt(1, kGold);
        painter.fillRect(bar, fill);
        painter.setPen(kInk);
        painter.drawText(QRectF(bar.left() - 9, area.bottom() + 5, column, 16), Qt::AlignHCenter,
                         QStringLiteral("%1 folds").arg(fold));
        painter.drawText(QRectF(bar.left() - 9, bar.top() - 16, column, 14), Qt::AlignHCenter,
                         QString::number(1 << fold));
    }
}

void BookDrawings::typeSpecimen(QPainter& painter, const QRectF& area) {
    double y = area.top();
    painter.setPen(kInk);
    for (const double size : {4.0, 5.0, 6.0, 7.0, 8.0, 10.0, 12.0, 16.0, 22.0, 30.0, 40.0}) {
        y += size * 1.15 + 5;
        painter.setFont(sans(6));
        painter.drawText(QPointF(area.left(), y), QString::number(size));
        painter.setFont(serif(size));
        painter.drawText(QPointF(area.left() + 22, y),
                         size < 18   ? QStringLiteral("Sphinx of black quartz, judge my vow")
                         : size < 25 ? QStringLiteral("Sphinx of black quartz")
                                     : QStringLiteral("Sphinx Qq &"));
    }
    y += 26;
    painter.setFont(mono(8));
    painter.setPen(kTeal);
    for (const char* line :
         {"for (const Page& page : book.pages())", "    page.turn(); // quietly"}) {
        painter.drawText(QPointF(area.left() + 22, y), QString::fromLatin1(line));
        y += 12;
    }
    for (const double width : {0.1, 0.25, 0.5, 1.0, 2.0}) {
        y += 10;
        painter.setPen(QPen(kInk, width));
        painter.drawLine(QPointF(area.left() + 22, y), QPointF(area.right(), y));
    }
}

void BookDrawings::ruledLines(QPainter& painter, const QRectF& area) {
    painter.setPen(QPen(kSand.darker(108), 0.5));
    for (double y = area.top() + 24; y <= area.bottom(); y += 24)
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
}
