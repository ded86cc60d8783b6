#pragma once

#include "platform/PDFPage.h"

#include <QJsonObject>
#include <functional>
#include <vector>

// The words and links of a page as the player of a web book takes them.
namespace WebPageText {

// The position in the book of a page of the PDF, given by its zero-based index; 0 when the book
// lacks it.
using Position = std::function<int(int pageIndex)>;

// Where an annotation's rectangle lies on the page as it is seen: points from its top left corner.
QRectF placeOnPage(const QRectF& bounds, const PDFPageBoxes& boxes);

// All numbers are whole tenths of a point. Addresses are as the document has them: the player
// decides which ones it follows.
QJsonObject asJson(const PDFPageBoxes& boxes, const std::vector<PDFTextLine>& lines,
                   const std::vector<PDFAnnotation>& annotations, const Position& position);

// The text alone: lines as they are read, a line break between them.
QString plain(const std::vector<PDFTextLine>& lines);

} // namespace WebPageText
