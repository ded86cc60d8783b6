#include "fuzz/Fuzz.h"
#include "pages/FlashPageSource.h"
#include "pages/PageRange.h"
#include "platform/PlatformException.h"

#include <algorithm>

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
        Fuzz::require(failure.name() == "PageRangeTooLong", "a range fails only for its length");
        return 0;
    }
    const auto has = [&numbers](int number) {
        return std::binary_search(numbers.begin(), numbers.end(), number);
    };
    Fuzz::require(std::adjacent_find(numbers.begin(), numbers.end(), std::greater_equal()) ==
                      numbers.end(),
                  "numbers are sorted, and none comes twice");
    for (const PageRun& run : runs)
        Fuzz::require(run.first <= run.last && has(run.first) && has(run.last),
                      "a run names a page, and both ends are in the list");
    for (const int number :
         numbers.empty() ? numbers : std::vector{numbers.front(), numbers.back()})
        Fuzz::require(std::any_of(runs.begin(), runs.end(),
                                  [number](const PageRun& run) {
                                      return run.first <= number && number <= run.last;
                                  }),
                      "no number comes from outside of the runs");
    return 0;
}
