#include "ui/ReadingSample.h"

#include "pages/Book.h"
#include "pages/FlashPageSource.h"
#include "pdf/PDFDocument.h"

#include <algorithm>

ReadingSample::ReadingSample(const QString& typed, const Book& book) {
    const QString range = typed.trimmed();
    if (range.isEmpty() || range.compare(QStringLiteral("all"), Qt::CaseInsensitive) == 0)
        return;
    if (const QStringList unclear = unclearParts(range); !unclear.isEmpty()) {
        iProblem = tr("The reading sample needs numbers of pages, such as 1-12, and not “%1”.")
                       .arg(unclear.front().trimmed());
        return;
    }
    const auto runs = pageRunsFromExpression(range, 0);
    iPages = book.document ? book.document->runs(runs) : runs;
    if (!book.pageSource)
        return;
    const auto& all = book.pageSource->pages();
    if (std::none_of(all.begin(), all.end(),
                     [&](const auto& page) { return isWithin(*iPages, page->pageIndex()); }))
        iProblem = tr("The book has none of the pages of the reading sample.");
}
