#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

// What the pages of the sample picture book are put together from. Points on a square page.
namespace PictureBookDrawings {

inline constexpr QRectF kPage(0, 0, 576, 576);
inline const QColor kCream(255, 246, 224);
inline const QColor kNight(20, 32, 62);
inline const QColor kGlow(255, 206, 110);

void sky(QPainter& painter, const QColor& top, const QColor& bottom);
void stars(QPainter& painter, unsigned seed, int count, double bottom);
void moon(QPainter& painter, QPointF middle, double radius);
// Rolling land from `base` down to the page's foot.
void hill(QPainter& painter, double base, double height, double phase, const QColor& color);
void pines(QPainter& painter, unsigned seed, double foot, double height, const QColor& color);
// A row of houses on `foot`; the window of one may be lit, counted from 0, or none.
void street(QPainter& painter, double foot, int lit, const QColor& wall);
void sea(QPainter& painter, double horizon, const QColor& far, const QColor& near);
void boat(QPainter& painter, QPointF waterline, double scale);
// A wall with a door, three steps and the hook; the lantern is drawn by itself.
void doorway(QPainter& painter, const QColor& wall);
void cat(QPainter& painter, QPointF foot, double scale);
void owl(QPainter& painter, QPointF middle, double scale);
void eyes(QPainter& painter, QPointF middle, double size);
void mushroom(QPainter& painter, QPointF foot, double scale, const QColor& cap);
void hedgehog(QPainter& painter, QPointF foot, double scale);
// The lantern, whose feet are at a point; it lights up what is around it.
void lantern(QPainter& painter, QPointF feet, double scale, bool walking = true);
void caption(QPainter& painter, double y, const QString& text, const QColor& color);
// Small lanterns all over the page.
void endpaper(QPainter& painter, const QColor& ground, const QColor& sign);

} // namespace PictureBookDrawings
