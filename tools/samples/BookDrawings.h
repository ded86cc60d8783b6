#pragma once

#include <QPainter>
#include <QRectF>

// The example book's drawn pages and ornaments.
namespace BookDrawings {

void cover(QPainter& painter);
void backCover(QPainter& painter);
// The strip of colour over a chapter's beginning.
void chapterHead(QPainter& painter, int number, const QString& title);
void fromDocumentToBook(QPainter& painter, const QRectF& area);
void rosette(QPainter& painter, const QRectF& area);
void colourWheel(QPainter& painter, const QRectF& area);
void graySteps(QPainter& painter, const QRectF& area);
void foldChart(QPainter& painter, const QRectF& area);
void typeSpecimen(QPainter& painter, const QRectF& area);
void ruledLines(QPainter& painter, const QRectF& area);

} // namespace BookDrawings
