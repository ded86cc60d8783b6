#include "webbook/reading/FigurePlaces.h"

#include "webbook/reading/Caption.h"

#include <algorithm>
#include <cmath>

namespace FigurePlaces {
namespace {

using Kind = ReadingBlock::Kind;
using List = std::vector<ReadingParagraph>;

// In points, from a figure to its caption.
constexpr double farthestCaption = 48;
// A share of the narrower one of two widths.
constexpr double leastOfColumn = 0.5;
constexpr double leastOfCaption = 0.25; // below a program and its output, say

QRectF boxOf(const ReadingParagraph& paragraph) {
    QRectF box;
    for (const ReadingLine& line : paragraph.lines)
        box |= line.box;
    return box;
}

QRectF boxOf(const List& region) {
    QRectF box;
    for (const ReadingParagraph& paragraph : region)
        box |= boxOf(paragraph);
    return box;
}

bool shareWidth(const QRectF& a, const QRectF& b, double least) {
    const double shared = std::min(a.right(), b.right()) - std::max(a.left(), b.left());
    return shared > least * std::min(a.width(), b.width());
}

// How far a paragraph is below a figure, or above it, where captions are less often.
double distance(const QRectF& figure, const QRectF& text) {
    constexpr double above = 12;
    return std::max(text.top() - figure.bottom(), figure.top() - text.bottom() + above);
}

// A paragraph in one of the regions.
struct Place {
    std::size_t region = 0;
    std::size_t paragraph = 0;
};

// The first paragraph below the figure's middle in what it shares a column with, else the end of
// the last such region.
Place placeOf(const ReadingFigure& figure, const std::vector<List>& regions) {
    const double middle = figure.box.center().y();
    Place place{0, 0};
    bool isFound = false;
    for (std::size_t i = 0; i < regions.size(); ++i) {
        const bool isOfColumn = shareWidth(boxOf(regions[i]), figure.box, leastOfColumn);
        const auto below =
            std::find_if(regions[i].begin(), regions[i].end(), [&](const ReadingParagraph& each) {
                return !each.lines.empty() && each.kind != Kind::figure &&
                       each.lines.front().box.center().y() > middle;
            });
        if (isOfColumn && below != regions[i].end())
            return {i, std::size_t(below - regions[i].begin())};
        const bool isAbove = boxOf(regions[i]).center().y() < middle;
        if (isOfColumn || (!isFound && isAbove))
            place = {i, regions[i].size()};
        isFound = isFound || isOfColumn;
    }
    return place;
}

struct Caption {
    double distance = 0;
    std::size_t figure = 0;
    Place place;
};

// What may be captions, the nearest ones first.
std::vector<Caption> captionsOf(const std::vector<ReadingFigure>& figures,
                                const std::vector<List>& regions) {
    std::vector<Caption> captions;
    for (std::size_t i = 0; i < regions.size(); ++i) {
        for (std::size_t j = 0; j < regions[i].size(); ++j) {
            const ReadingParagraph& paragraph = regions[i][j];
            if (!::Caption::startsLike(paragraph.lines.front().text))
                continue;
            const QRectF box = boxOf(paragraph);
            for (std::size_t figure = 0; figure < figures.size(); ++figure) {
                const double apart = distance(figures[figure].box, box);
                if (apart < farthestCaption && shareWidth(figures[figure].box, box, leastOfCaption))
                    captions.push_back({apart, figure, {i, j}});
            }
        }
    }
    std::stable_sort(captions.begin(), captions.end(),
                     [](const Caption& a, const Caption& b) { return a.distance < b.distance; });
    return captions;
}

} // namespace

void insert(const std::vector<ReadingFigure>& figures, std::vector<List>& regions) {
    List made(figures.size());
    for (std::size_t i = 0; i < figures.size(); ++i) {
        made[i].kind = Kind::figure;
        made[i].figure = figures[i];
    }
    for (const Caption& caption : captionsOf(figures, regions)) {
        ReadingParagraph& text = regions[caption.place.region][caption.place.paragraph];
        if (made[caption.figure].lines.empty())
            made[caption.figure].lines = std::exchange(text.lines, {});
    }
    for (List& region : regions)
        std::erase_if(region, [](const ReadingParagraph& each) { return each.lines.empty(); });
    std::erase_if(regions, [](const List& region) { return region.empty(); });
    std::stable_sort(made.begin(), made.end(), [](const auto& a, const auto& b) {
        return a.figure.box.top() < b.figure.box.top();
    });
    for (ReadingParagraph& figure : made) {
        const Place place = placeOf(figure.figure, regions);
        if (regions.empty())
            regions.emplace_back();
        List& region = regions[place.region];
        region.insert(region.begin() + std::ptrdiff_t(place.paragraph), std::move(figure));
    }
}

} // namespace FigurePlaces
