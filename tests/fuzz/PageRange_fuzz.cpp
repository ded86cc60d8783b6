#include "fuzz/Fuzz.h"
#include "pages/FlashPageSource.h"
#include "pages/PageRange.h"
#include "platform/PlatformException.h"

#include <algorithm>

namespace {

bool isInARun(const std::vector<PageRun>& runs, int number) {
    return std::any_of(runs.begin(), runs.end(), [number](const PageRun& run) {
        return run.first <= number && number <= run.last;
    });
}

bool hasEnds(const std::vector<int>& numbers, const PageRun& run) {
    return std::binary_search(numbers.begin(), numbers.end(), run.first) &&
           std::binary_search(numbers.begin(), numbers.end(), run.last);
}

} // namespace

// One byte for the number of pages, then the expression.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const int total = static_cast<int>(input.byte());
    const QString expression = QString::fromUtf8(input.rest());

    const auto runs = pageRunsFromExpression(expression, total);
    Fuzz::require(runs.size() <= std::size_t(expression.count(u',') + 1),
                  "an expression names no more runs than it has pieces");
    std::vector<int> numbers;
    try {
        numbers = FlashPageSource::parsePageRange(expression, total);
    } catch (const PlatformException& failure) {
        Fuzz::require(failure.name() == QStringLiteral("PageRangeTooLong"),
                      "a range fails only for its length");
        return 0;
    }

    Fuzz::require(std::is_sorted(numbers.begin(), numbers.end()), "numbers are sorted");
    Fuzz::require(std::adjacent_find(numbers.begin(), numbers.end()) == numbers.end(),
                  "no number comes twice");
    for (const PageRun& run : runs) {
        Fuzz::require(run.first <= run.last, "a run names a page");
        Fuzz::require(hasEnds(numbers, run), "both ends of a run are in the list");
    }
    if (!numbers.empty()) {
        Fuzz::require(isInARun(runs, numbers.front()) && isInARun(runs, numbers.back()),
                      "no number comes from outside of the runs");
    }
    return 0;
}
