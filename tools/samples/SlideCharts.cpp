#include "SlideCharts.h"

#include "BookStyle.h"

#include <QPainterPath>
#include <algorithm>

namespace {

const QColor kRule(214, 222, 226);
const QColor kColors[] = {SlideCharts::kAccent, SlideCharts::kDeep, QColor(92, 154, 164),
                          QColor(236, 186, 92)};

void label(QPainter& painter, const QRectF& area, const QString& text, double size, bool bold,
           const QColor& color, int flags) {
    painter.setFont(BookStyle::sans(size, bold));
    painter.setPen(color);
    painter.drawText(area, flags | Qt::AlignVCenter, text);
}

} // namespace

void SlideCharts::bars(QPainter& painter, const QRectF& area, const std::vector<Bar>& values) {
    const double most = std::max_element(values.begin(), values.end(), [](auto& a, auto& b) {
                            return a.value < b.value;
                        })->value;
    const double step = area.height() / static_cast<double>(values.size());
    double y = area.top();
    for (const Bar& bar : values) {
        label(painter, {area.left(), y, 130, step - 16}, bar.name, 18, false, kInk, Qt::AlignLeft);
        const QRectF full(area.left() + 140, y, area.width() - 220, step - 16);
        const double width = full.width() * bar.value / most;
        painter.fillRect(full, QColor(236, 240, 242));
        painter.fillRect(QRectF(full.topLeft(), QSizeF(width, full.height())),
                         &bar == &values.back() ? kAccent : kDeep);
        label(painter, {full.left() + full.width() + 14, y, 70, step - 16},
              QString::number(bar.value), 24, true, kInk, Qt::AlignLeft);
        y += step;
    }
}

void SlideCharts::ring(QPainter& painter, const QRectF& area, const std::vector<Bar>& shares,
                       const QString& unit) {
    double begin = 90;
    double y = area.top() + 18;
    size_t index = 0;
    for (const Bar& share : shares) {
        const QColor color = kColors[index++ % std::size(kColors)];
        const double span = -3.6 * share.value;
        QPainterPath slice;
        slice.arcMoveTo(area, begin);
        slice.arcTo(area, begin, span);
        slice.arcTo(area.adjusted(72, 72, -72, -72), begin + span, -span);
        slice.closeSubpath();
        painter.setPen(QPen(kBack, 3));
        painter.setBrush(color);
        painter.drawPath(slice);
        begin += span;
        const double left = area.right() + 70;
        painter.fillRect(QRectF(left, y + 14, 20, 20), color);
        label(painter, {left + 38, y, 260, 48}, share.name, 21, false, kInk, Qt::AlignLeft);
        label(painter, {left + 300, y, 110, 48}, QString::number(share.value) + unit, 26, true,
              kInk, Qt::AlignRight);
        y += 64;
    }
}

void SlideCharts::lines(QPainter& painter, const QRectF& area,
                        const std::vector<std::vector<double>>& rows, const QStringList& names,
                        double least, double most) {
    const QRectF plot = area.adjusted(46, 10, -96, -30);
    const auto height = [&](double value) {
        return plot.bottom() - plot.height() * (value - least) / (most - least);
    };
    for (double value = least; value <= most; value += 5) {
        painter.setPen(QPen(kRule, 1));
        painter.drawLine(QPointF(plot.left(), height(value)), QPointF(plot.right(), height(value)));
        label(painter, {area.left(), height(value) - 10, 36, 20}, QString::number(value), 12, false,
              kMuted, Qt::AlignRight);
    }
    for (int hour = 0; hour < 24; hour += 3)
        label(painter, {plot.left() + plot.width() * hour / 23 - 30, plot.bottom() + 8, 60, 20},
              QStringLiteral("%1:00").arg(hour), 12, false, kMuted, Qt::AlignHCenter);
    for (size_t row = 0; row < rows.size(); ++row) {
        QPainterPath path;
        for (size_t i = 0; i < rows[row].size(); ++i) {
            const double x = plot.left() + plot.width() * static_cast<double>(i) / 23;
            const QPointF point(x, height(rows[row][i]));
            i == 0 ? path.moveTo(point) : path.lineTo(point);
        }
        const QColor color = row == 0 ? QColor(150, 166, 176) : kAccent;
        painter.setPen(QPen(color, row == 0 ? 3 : 4.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
        label(painter, {plot.right() + 12, height(rows[row].back()) - 14, 84, 28},
              names[static_cast<int>(row)], 17, true, color.darker(row == 0 ? 120 : 100),
              Qt::AlignLeft);
    }
}

void SlideCharts::table(QPainter& painter, const QRectF& area,
                        const std::vector<QStringList>& rows) {
    const double step = area.height() / static_cast<double>(rows.size());
    const double columns[] = {0, 0.4, 0.6, 0.82, 1};
    for (size_t row = 0; row < rows.size(); ++row) {
        const double y = area.top() + step * static_cast<double>(row);
        const bool head = row == 0;
        if (head)
            painter.fillRect(QRectF(area.left(), y, area.width(), step), kDeep);
        for (int column = 0; column < rows[row].size(); ++column) {
            const double left = area.left() + area.width() * columns[column];
            const double right = area.left() + area.width() * columns[column + 1];
            label(painter, {left + 18, y, right - left - 36, step}, rows[row][column],
                  head ? 15 : 19, head || column == 3, head ? QColor(Qt::white) : kInk,
                  column == 0 ? Qt::AlignLeft : Qt::AlignRight);
        }
        painter.setPen(QPen(kRule, 1));
        painter.drawLine(QPointF(area.left(), y + step), QPointF(area.right(), y + step));
    }
}

void SlideCharts::steps(QPainter& painter, const QRectF& area, const QStringList& texts) {
    const double width = area.width() / static_cast<double>(texts.size());
    const double y = area.top() + 70;
    painter.setPen(QPen(kRule, 4));
    painter.drawLine(QPointF(area.left() + 16, y), QPointF(area.right() - width + 60, y));
    for (int i = 0; i < texts.size(); ++i) {
        const double left = area.left() + i * width;
        painter.setPen(QPen(kBack, 5));
        painter.setBrush(i == 0 ? kAccent : kDeep);
        painter.drawEllipse(QPointF(left + 18, y), 18, 18);
        label(painter, {left, y + 32, width - 20, 36}, texts[i].section(QLatin1Char('|'), 0, 0), 24,
              true, kInk, Qt::AlignLeft);
        painter.setFont(BookStyle::sans(18));
        painter.setPen(kMuted);
        painter.drawText(QRectF(left, y + 74, width - 28, 110), Qt::AlignLeft | Qt::TextWordWrap,
                         texts[i].section(QLatin1Char('|'), 1));
    }
}
