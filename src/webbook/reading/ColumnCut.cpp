#include "webbook/reading/ColumnCut.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace ColumnCut {
namespace {

using Group = std::vector<std::size_t>;

// More pieces than a page of text has: a map, or a drawing.
constexpr std::size_t maxPieces = 1500;
constexpr int maxDepth = 40;

constexpr double gutterSize = 0.7;   // in sizes of letters
constexpr double headlineSize = 1.3; // for the size of most letters
constexpr double letterWidth = 1.2;  // in sizes of letters, at most
constexpr int fewestRows = 3;        // of a column
constexpr double leastOverlap = 0.4; // of the heights of columns, for the lower one
constexpr double leastFilled = 0.45; // of a column's width by its mean row
constexpr double fewestWords = 1.9;  // of a column's mean row
constexpr double mostAligned = 0.8;  // of the rows of a narrow column with rows of the wide one
constexpr std::size_t tallRows = 10;
constexpr double leastMixed = 0.6;    // at most so many rows of tall columns are beside each other
constexpr double similarWidths = 0.6; // of the narrower column, for the wider one
constexpr double tolerance = 0.5;     // of edges, in points

// What lies on one side of a gutter.
struct Side {
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
    double covered = 0; // the sum of all rows' lengths
    int words = 0;
    std::vector<double> rows; // baselines

    void add(const Piece& piece) {
        if (rows.empty())
            *this = {piece.left, piece.right, piece.top(), piece.bottom(), 0, 0, {}};
        left = std::min(left, piece.left);
        right = std::max(right, piece.right);
        top = std::min(top, piece.top());
        bottom = std::max(bottom, piece.bottom());
        covered += piece.right - piece.left;
        words += piece.words;
        if (rows.empty() || piece.baseline - rows.back() > piece.size / 2)
            rows.push_back(piece.baseline);
    }
    double width() const { return right - left; }
    double rowCount() const { return double(rows.size()); }
    // Rather than the cells of a table.
    bool isText() const {
        return covered >= leastFilled * width() * rowCount() && words >= fewestWords * rowCount();
    }
};

// The pieces from first to before last have nothing in the gutter that ends at across.
struct Gutter {
    double across = 0;
    std::size_t first = 0;
    std::size_t last = 0;
    double score = 0;
};

class Cutter {
public:
    explicit Cutter(const std::vector<Piece>& pieces) : iPieces(pieces) {}

    void cut(std::span<const std::size_t> group, int depth);
    std::vector<Group> groups;

private:
    std::optional<Gutter> bestGutter(std::span<const std::size_t> group) const;
    double score(std::span<const std::size_t> run, double across) const;
    double medianSize(std::span<const std::size_t> group) const;
    std::vector<bool> headlines(std::span<const std::size_t> group, double size) const;
    std::vector<double> leftEdges(std::span<const std::size_t> group) const;

    const std::vector<Piece>& iPieces;
};

double Cutter::medianSize(std::span<const std::size_t> group) const {
    std::vector<double> sizes;
    for (const std::size_t i : group)
        sizes.push_back(iPieces[i].size);
    const auto middle = sizes.begin() + std::ptrdiff_t(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return *middle;
}

// Whether each piece is large and has nothing smaller beside it: what follows is an article of its
// own, which has its own columns. Single letters stand in the columns of an index.
std::vector<bool> Cutter::headlines(std::span<const std::size_t> group, double size) const {
    std::vector<bool> are;
    for (const std::size_t i : group) {
        const Piece& piece = iPieces[i];
        const auto isBeside = [&](std::size_t other) {
            const Piece& beside = iPieces[other];
            return beside.size < headlineSize * size && beside.bottom() > piece.top() &&
                   beside.top() < piece.bottom();
        };
        are.push_back(piece.size >= headlineSize * size &&
                      piece.right - piece.left > letterWidth * piece.size &&
                      std::none_of(group.begin(), group.end(), isBeside));
    }
    return are;
}

std::vector<double> Cutter::leftEdges(std::span<const std::size_t> group) const {
    std::vector<double> edges;
    for (const std::size_t i : group)
        edges.push_back(iPieces[i].left);
    std::sort(edges.begin(), edges.end());
    const auto isNear = [](double a, double b) { return b - a < tolerance; };
    edges.erase(std::unique(edges.begin(), edges.end(), isNear), edges.end());
    return edges;
}

// The part of the rows of one side that have a row beside them.
double alignedShare(const Side& a, const Side& b) {
    const Side& fewer = a.rows.size() <= b.rows.size() ? a : b;
    const Side& more = &fewer == &a ? b : a;
    const auto isAligned = [&](double row) {
        const auto next = std::lower_bound(more.rows.begin(), more.rows.end(), row - 1);
        return next != more.rows.end() && *next <= row + 1;
    };
    const auto aligned = double(std::count_if(fewer.rows.begin(), fewer.rows.end(), isAligned));
    return aligned / fewer.rowCount();
}

// A definition list or a table has rows of two sides that belong together. Tall columns may have
// tables in them, or short lines.
bool areColumns(const Side& a, const Side& b) {
    const double aligned = alignedShare(a, b);
    if (!a.isText() || !b.isText())
        return std::min(a.rows.size(), b.rows.size()) >= tallRows && aligned < leastMixed;
    const double widths =
        std::min(a.width(), b.width()) / std::max({a.width(), b.width(), tolerance});
    return aligned < mostAligned || widths >= similarWidths;
}

// 0 when these are no columns.
double Cutter::score(std::span<const std::size_t> run, double across) const {
    Side before;
    Side after;
    for (const std::size_t i : run)
        (iPieces[i].left >= across - tolerance ? after : before).add(iPieces[i]);
    const auto rows = std::min(before.rows.size(), after.rows.size());
    if (rows < std::size_t(fewestRows))
        return 0;
    const double shared = std::min(before.bottom, after.bottom) - std::max(before.top, after.top);
    const double lower = std::min(before.bottom - before.top, after.bottom - after.top);
    return shared < leastOverlap * lower || !areColumns(before, after) ? 0 : double(rows);
}

std::optional<Gutter> Cutter::bestGutter(std::span<const std::size_t> group) const {
    std::optional<Gutter> best;
    const double size = medianSize(group);
    const double width = gutterSize * size;
    const std::vector<bool> areHeadlines = headlines(group, size);
    const auto tryRun = [&](double across, std::size_t first, std::size_t last) {
        if (last - first < 2 * std::size_t(fewestRows))
            return;
        const double found = score(group.subspan(first, last - first), across);
        if (found > 0 && (!best || found > best->score))
            best = Gutter{across, first, last, found};
    };
    for (const double across : leftEdges(group)) {
        std::size_t first = 0;
        for (std::size_t i = 0; i < group.size(); ++i) {
            const Piece& piece = iPieces[group[i]];
            const bool crosses =
                piece.left < across - tolerance && piece.right > across - width + tolerance;
            if (!crosses && !areHeadlines[i])
                continue;
            tryRun(across, first, i);
            first = i + 1;
        }
        tryRun(across, first, group.size());
    }
    return best;
}

void Cutter::cut(std::span<const std::size_t> group, int depth) {
    if (group.empty())
        return;
    const auto gutter = depth < maxDepth ? bestGutter(group) : std::nullopt;
    if (!gutter) {
        groups.emplace_back(group.begin(), group.end());
        return;
    }
    Group before;
    Group after;
    for (const std::size_t i : group.subspan(gutter->first, gutter->last - gutter->first))
        (iPieces[i].left >= gutter->across - tolerance ? after : before).push_back(i);
    cut(group.first(gutter->first), depth + 1);
    cut(before, depth + 1);
    cut(after, depth + 1);
    cut(group.subspan(gutter->last), depth + 1);
}

} // namespace

std::vector<std::vector<std::size_t>> groups(const std::vector<Piece>& pieces) {
    Group all(pieces.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    std::stable_sort(all.begin(), all.end(), [&](std::size_t a, std::size_t b) {
        return pieces[a].baseline < pieces[b].baseline;
    });
    if (all.size() > maxPieces)
        return {all};
    Cutter cutter(pieces);
    cutter.cut(all, 0);
    return cutter.groups;
}

} // namespace ColumnCut
