#include "cli/PublishTiming.h"

#include "console/Terminal.h"
#include "pages/Book.h"
#include "pages/FlashPageSource.h"
#include "pages/PDFToSWFPageConverter.h"
#include "system/NameAliases.h"

#include <QJsonDocument>
#include <algorithm>

double PublishTiming::lap() {
    const double seconds = iWatch.lap();
    iSeconds[QStringLiteral("total")] = iSeconds[QStringLiteral("total")].toDouble() + seconds;
    return seconds;
}

void PublishTiming::opened() {
    iSeconds[QStringLiteral("open")] = lap();
}

void PublishTiming::imported(const Book& book) {
    const double seconds = lap();
    const PageTiming& pages = book.converter->timing();
    const auto workers = double(std::max<std::size_t>(1, book.converter->workerCount()));
    iSeconds[QStringLiteral("import")] = seconds;
    iSeconds[QStringLiteral("pages")] = double(book.pageSource->pages().size());
    iSeconds[QStringLiteral("workers")] = workers;
    iSeconds[QStringLiteral("draw")] = pages.draw;
    iSeconds[QStringLiteral("encode")] = pages.encode;
    iSeconds[QStringLiteral("write")] = pages.write;
    iSeconds[QStringLiteral("idle")] =
        std::max(0.0, workers * seconds - pages.draw - pages.encode - pages.write);
}

void PublishTiming::published() {
    iSeconds[QStringLiteral("publish")] = lap();
}

void PublishTiming::write(const QString& path) const {
    Message error;
    if (!NameAliases::write(path, QJsonDocument(iSeconds).toJson(), &error))
        Terminal::report(QStringLiteral("folvero: %1: %2").arg(path, error.english()));
}
