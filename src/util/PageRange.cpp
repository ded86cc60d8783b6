#include "util/PageRange.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "util/LenientInteger.h"

#include <QRegularExpression>
#include <algorithm>
#include <cstdint>

namespace {

// No book has more pages; a longer list is a typing error or an attempt to exhaust memory.
constexpr std::int64_t maxListedPages = 1'000'000;

} // namespace

std::vector<PageRun> pageRunsFromExpression(const QString& expression, int total) {
    if (expression.toUpper() == QStringLiteral("ALL"))
        return total > 0 ? std::vector<PageRun>{{1, total}} : std::vector<PageRun>{};
    std::vector<PageRun> runs;
    for (const QStringView piece : QStringView(expression).split(u',')) {
        PageRun run{};
        if (piece.contains(u'-')) {
            const auto ends = piece.split(u'-');
            run = {lenientInteger(ends[0]), lenientInteger(ends[1])};
        } else {
            run.first = run.last = lenientInteger(piece);
        }
        if (run.first <= run.last)
            runs.push_back(run);
    }
    return runs;
}

std::vector<int> pagesFromExpression(const QString& expression, int total) {
    auto runs = pageRunsFromExpression(expression, total);
    std::int64_t count = 0;
    for (const PageRun& run : runs)
        count += std::int64_t{run.last} - run.first + 1;
    if (count > maxListedPages) {
        throw PlatformException(
            ErrorKind::pageRangeTooLong,
            Message::translate("PageRange", "the page range \"%1\" names %2 pages")
                .arg(expression, QString::number(count)));
    }

    std::sort(runs.begin(), runs.end(),
              [](const PageRun& a, const PageRun& b) { return a.first < b.first; });
    std::vector<int> numbers;
    numbers.reserve(static_cast<std::size_t>(count));
    for (const PageRun& run : runs) {
        std::int64_t number = run.first;
        if (!numbers.empty())
            number = std::max<std::int64_t>(number, std::int64_t{numbers.back()} + 1);
        for (; number <= run.last; ++number)
            numbers.push_back(static_cast<int>(number));
    }

    const Log log("FlashPageSource");
    if (expression.toUpper() != QStringLiteral("ALL") && log.isDebugEnabled()) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            log.debug(QStringLiteral("range[%1]=%2").arg(i).arg(numbers[i]));
    }
    return numbers;
}

QStringList unclearParts(const QString& expression) {
    static const QRegularExpression clear(QStringLiteral("^\\s*(\\d+\\s*(-\\s*\\d+\\s*)?|all)$"),
                                          QRegularExpression::CaseInsensitiveOption);
    QStringList parts;
    for (const QString& part : expression.split(u',', Qt::SkipEmptyParts)) {
        if (!clear.match(part).hasMatch())
            parts << part;
    }
    return parts;
}

bool isWithin(const std::vector<PageRun>& runs, int page) {
    return std::any_of(runs.begin(), runs.end(), [page](const PageRun& run) {
        return run.first <= page && page <= run.last;
    });
}
