#include "picture/GrayLevels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace {

// With fewer levels a page of little text, whose error is small, would show it.
constexpr std::size_t minGroups = 12;
constexpr std::size_t maxGroups = 16;
constexpr std::size_t levels = 256;

// Numbers of neighbouring levels in use, as a group that one level stands for.
class Groups {
public:
    explicit Groups(const GrayLevels::Counts& counts) {
        for (std::size_t level = 0; level < levels; ++level) {
            if (counts[level] == 0)
                continue;
            const Sums& before = iSums[iCount];
            const double count = counts[level];
            const auto value = double(level);
            used[iCount++] = level;
            iSums[iCount] = {before.count + count, before.first + count * value,
                             before.second + count * value * value};
        }
    }

    // Of used levels.
    std::size_t count() const { return iCount; }
    double mean(std::size_t first, std::size_t last) const {
        const Sums sums = between(first, last);
        return sums.first / sums.count;
    }
    // Sum of the squared errors.
    double error(std::size_t first, std::size_t last) const {
        const Sums sums = between(first, last);
        return std::max(0.0, sums.second - sums.first * sums.first / sums.count);
    }

    std::array<std::size_t, levels> used{};

private:
    struct Sums {
        double count, first, second; // of pixels, their levels, and the squares of these
    };
    Sums between(std::size_t first, std::size_t last) const {
        const Sums& end = iSums[last + 1];
        const Sums& start = iSums[first];
        return {end.count - start.count, end.first - start.first, end.second - start.second};
    }

    std::size_t iCount = 0;
    std::array<Sums, levels + 1> iSums{};
};

} // namespace

// By dynamic programming: the best grouping of the levels up to one, for each number of groups.
GrayLevels GrayLevels::of(const Counts& counts, double wantedError) {
    const Groups groups(counts);
    std::size_t most = std::min(groups.count(), maxGroups);
    std::array<std::array<double, levels>, maxGroups> best{};
    std::array<std::array<std::size_t, levels>, maxGroups> start{}; // of the last group
    for (std::size_t last = 0; last < groups.count(); ++last)
        best[0][last] = groups.error(0, last);
    for (std::size_t group = 1; group < most; ++group) {
        if (group >= minGroups && best[group - 1][groups.count() - 1] <= wantedError)
            most = group;
        for (std::size_t last = group; last < groups.count(); ++last) {
            double& least = best[group][last];
            least = std::numeric_limits<double>::max();
            // The more levels, the later the last group starts, and the larger is the error of
            // those before it.
            for (std::size_t first = std::max(group, start[group][last - 1]);
                 first <= last && best[group - 1][first - 1] < least; ++first) {
                const double error = best[group - 1][first - 1] + groups.error(first, last);
                if (error < least) {
                    least = error;
                    start[group][last] = first;
                }
            }
        }
    }
    GrayLevels result;
    result.chosen.resize(most);
    result.error = best[most - 1][groups.count() - 1];
    for (std::size_t group = most, end = groups.count(); group-- > 0; end = start[group][end - 1]) {
        const std::size_t first = group == 0 ? 0 : start[group][end - 1];
        result.chosen[group] = static_cast<unsigned char>(std::lround(groups.mean(first, end - 1)));
        for (std::size_t i = first; i < end; ++i)
            result.indexOf[groups.used[i]] = static_cast<unsigned char>(group);
    }
    return result;
}
