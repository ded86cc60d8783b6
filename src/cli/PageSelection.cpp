#include "cli/PageSelection.h"

#include "console/CommandError.h"
#include "util/PageRange.h"

#include <QStringList>
#include <algorithm>

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
        if (run.last > pageCount)
            missing << runText(std::max(run.first, pageCount + 1), run.last);
    }
    if (kept.isEmpty()) {
        throw CommandError(QStringLiteral("the page range \"%1\" names no page of the document, "
                                          "which has pages 1 to %2")
                               .arg(expression)
                               .arg(pageCount));
    }
    PageSelection selection{kept.join(u','), {}};
    const QStringList unclear = unclearParts(expression);
    if (!unclear.isEmpty()) {
        selection.remarks << QStringLiteral(
                                 "the page range is not clear at \"%1\"; taking pages %2")
                                 .arg(unclear.join(QStringLiteral("\", \"")), selection.range);
    }
    if (!missing.isEmpty()) {
        selection.remarks << QStringLiteral("has only %1 pages; left out: %2")
                                 .arg(pageCount)
                                 .arg(missing.join(QStringLiteral(", ")));
    }
    return selection;
}
