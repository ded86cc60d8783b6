#include "pdf/PDFMarks.h"

#include "pdf/PDFLimits.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace {

// Of drawings, in points.
constexpr double smallMark = 24;
constexpr double smallDistance = 3;
constexpr double smallGroup = 72;

bool isSmall(const QRectF& box) {
    return std::max(box.width(), box.height()) <= smallMark;
}

} // namespace

void PDFMarks::add(const PDFMark& mark) {
    const QRectF& box = mark.box;
    if (!std::isfinite(box.x() + box.y() + box.width() + box.height()))
        return;
    // The points of a plot follow each other.
    if (mark.kind == PDFMark::Kind::drawing && !iMarks.empty() && isSmall(box)) {
        PDFMark& last = iMarks.back();
        const QRectF both = last.box | box;
        const double d = smallDistance;
        if (last.kind == mark.kind && std::max(both.width(), both.height()) <= smallGroup &&
            last.box.adjusted(-d, -d, d, d).intersects(box)) {
            last.box = both;
            return;
        }
    }
    iMarks.push_back(mark);
    while (iMarks.size() > PDFLimits::maxPageMarks)
        thin();
}

void PDFMarks::thin() {
    std::map<std::tuple<PDFMark::Kind, double, double>, QRectF> cells;
    std::vector<PDFMark> kept;
    for (const auto& [box, kind] : iMarks) {
        if (std::max(box.width(), box.height()) > 2 * iCell)
            kept.push_back({box, kind});
        else
            cells[{kind, std::floor(box.center().x() / iCell),
                   std::floor(box.center().y() / iCell)}] |= box;
    }
    for (const auto& [cell, box] : cells)
        kept.push_back({box, std::get<0>(cell)});
    iMarks = std::move(kept);
    iCell *= 2;
}
