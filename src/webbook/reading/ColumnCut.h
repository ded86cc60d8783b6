#pragma once

#include <cstddef>
#include <vector>

// Finds the columns of a page by the gutters between them.
namespace ColumnCut {

// A piece of a line without wide gaps. In points, in the direction in which it is read.
struct Piece {
    double left = 0;
    double right = 0;
    double baseline = 0;
    double size = 0;
    int words = 0;

    double top() const { return baseline - 0.75 * size; }
    double bottom() const { return baseline + 0.2 * size; }
};

// Groups of numbers of pieces: each group is a column, or what lies above, below or beside columns,
// and is to be read before the next one. Within a group the order is that of baselines.
std::vector<std::vector<std::size_t>> groups(const std::vector<Piece>& pieces);

} // namespace ColumnCut
