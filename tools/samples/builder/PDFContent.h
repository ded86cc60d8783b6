#pragma once

#include <QByteArray>
#include <QColor>
#include <QPointF>
#include <QRectF>

// Pieces of page content. Points, origin at the lower left.
namespace PDFContent {

// One line of Latin text in a font of the page's resources.
QByteArray text(const QByteArray& font, double size, QPointF baseline, const QByteArray& text);
QByteArray fillColor(const QColor& color);
QByteArray fillRect(const QRectF& rect);
QByteArray strokeRect(const QRectF& rect, double lineWidth);
// An image or form of the page's resources; an image fills the rectangle.
QByteArray image(const QByteArray& name, const QRectF& rect);
QByteArray form(const QByteArray& name);

} // namespace PDFContent
