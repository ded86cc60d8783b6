#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QSizeF>

// The look of the example book, in one place.
namespace BookStyle {

inline constexpr QSizeF kPageSize(420, 595);
inline constexpr QRectF kPage(0, 0, 420, 595);
inline constexpr QRectF kTextBlock(52, 62, 316, 470);

inline const QColor kPaper(251, 247, 238);
inline const QColor kInk(38, 36, 44);
inline const QColor kNavy(29, 43, 69);
inline const QColor kCoral(214, 88, 60);
inline const QColor kGold(226, 168, 62);
inline const QColor kTeal(46, 126, 120);
inline const QColor kSand(233, 222, 200);

// Sizes in points.
QFont serif(double size, bool bold = false, bool italic = false);
QFont sans(double size, bool bold = false);
QFont mono(double size);

} // namespace BookStyle
