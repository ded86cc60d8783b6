#pragma once

#include "pdf/PDFPage.h"
#include "pdf/PDFText.h"
#include "webbook/reading/PageLayout.h"

#include <QJsonArray>
#include <QJsonObject>
#include <functional>
#include <vector>

// The words and links of a page in the format of the web book's player.
namespace WebPageText {

// The one-based position in the book of a page by its zero-based index in the PDF; 0 when it is not
// in the book.
using Position = std::function<int(int pageIndex)>;

// An annotation's rectangle on the page as displayed: in points from its top left corner.
QRectF placeOnPage(const QRectF& bounds, const PDFPage& page);

// The links of a page, as displayed, that lead somewhere: a target is 0 for a page that is not in
// the book.
std::vector<PageLayout::Link> linksOf(const PDFPage& page,
                                      const std::vector<PDFAnnotation>& annotations,
                                      const Position& position);

// Left, top, width and height in tenths of a point.
QJsonArray tenths(const QRectF& box);
QJsonArray tenths(const QSizeF& size);

// Numbers are integers in tenths of a point. URLs are copied from the document: the player decides
// which ones to follow.
QJsonObject asJson(const PDFPage& page, const std::vector<PDFTextLine>& lines,
                   const std::vector<PageLayout::Link>& links);

// The text alone: lines in reading order, separated by line breaks.
QString plain(const std::vector<PDFTextLine>& lines);

// Whether a page with this text lists where to find what, as contents and indexes do: at least half
// of its lines end in page numbers, and these follow dots or commas or hardly one is less than the
// one before, which tells contents from tables.
bool isListing(const QString& text);

} // namespace WebPageText
