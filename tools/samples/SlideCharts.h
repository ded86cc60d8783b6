#pragma once

#include <QColor>
#include <QPainter>
#include <QStringList>
#include <vector>

// The charts of the sample slides, each drawn into an area.
namespace SlideCharts {

inline const QColor kBack(250, 251, 251);
inline const QColor kInk(18, 40, 60);
inline const QColor kDeep(18, 58, 84);
inline const QColor kMuted(92, 108, 120);
inline const QColor kAccent(226, 96, 66);

struct Bar {
    QString name;
    double value;
};

void bars(QPainter& painter, const QRectF& area, const std::vector<Bar>& values);
// A ring of shares with its legend at the right; values add up to 100.
void ring(QPainter& painter, const QRectF& area, const std::vector<Bar>& shares,
          const QString& unit);
// One curve a row of 24 values, between `least` and `most`.
void lines(QPainter& painter, const QRectF& area, const std::vector<std::vector<double>>& rows,
           const QStringList& names, double least, double most);
// The first row is the head; numbers stand at the right.
void table(QPainter& painter, const QRectF& area, const std::vector<QStringList>& rows);
// A time line; each text is "when|what".
void steps(QPainter& painter, const QRectF& area, const QStringList& texts);

} // namespace SlideCharts
