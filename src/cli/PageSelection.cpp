#include "cli/PageSelection.h"

#include "cli/CommandError.h"
#include "pages/PageRange.h"

#include <QStringList>
#include <algorithm>
#include <vector>

namespace {

QString runText(int first, int last) {
    return first == last ? QString::number(first) : QStringLiteral("%1-%2").arg(first).arg(last);
}

} // namespace

PageSelection selectPages(const QString& expression, int pageCount) {
    QStringList kept;
    QStringList missing;
    for (const PageRun& run : pageRunsFromExpression(expression, pageCount)) {
        const int first = std::max(run.first, 1);
        const int last = std::min(run.last, pageCount);
        if (first <= last)
            kept << runText(first, last);
        if (run.first < 1)
            missing << runText(run.first, std::min(run.last, 0));
        if (run.last > pageCount)
            missing << runText(std::max(run.first, pageCount + 1), run.last);
    }
    if (kept.isEmpty()) {
        throw CommandError(QStringLiteral("the page range \"%1\" names no page of the document, "
                                          "which has pages 1 to %2")
                               .arg(expression)
                               .arg(pageCount));
    }
    return {kept.join(u','), missing.join(QStringLiteral(", "))};
}
