// Measures the cost of a web book's words per page: reading them from the PDF, making the files for
// the player's text layer and its search, and working out the structure of the text.
//
//     folvero-bench-text DOCUMENT...

#include "base/PlatformException.h"
#include "base/Stopwatch.h"
#include "output/WebScript.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "webbook/WebPageText.h"
#include "webbook/reading/BookReading.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <cstdio>

namespace {

void measure(const QString& path) {
    const DrawablePDF document(path);
    const int pages = document.pageCount();
    double reading = 0;
    double layers = 0;
    double structuring = 0;
    qsizetype layerBytes = 0;
    BookReading structure;
    QJsonArray texts;
    for (int index = 0; index < pages; ++index) {
        Stopwatch watch;
        const PDFPageText text =
            DrawablePage(document, index, {}, DrawablePage::Content::picturesAndText).text();
        reading += 1000 * watch.lap();
        const PDFPage page = document.page(index);
        const auto links = WebPageText::linksOf(page, document.annotations(index),
                                                [](int target) { return target + 1; });
        const auto json = WebPageText::asJson(page, text.lines, links);
        layerBytes += WebScript::file(QStringLiteral("text"), WebScript::json(json)).size();
        texts.append(WebPageText::plain(text.lines));
        layers += 1000 * watch.lap();
        structure.addPage(index + 1, text, links);
        structuring += 1000 * watch.lap();
    }
    Stopwatch finishing;
    structure.finish({});
    structuring += 1000 * finishing.lap();
    Stopwatch watch;
    const auto search = WebScript::file(QStringLiteral("search/text"), WebScript::json(texts));
    const double index = 1000 * watch.lap();
    std::printf("| %s | %d | %.2f ms | %.2f ms | %.2f ms | %.3f ms | %lld kB | %lld kB |\n",
                qPrintable(QFileInfo(path).fileName()), pages, reading / pages, layers / pages,
                structuring / pages, index / pages, static_cast<long long>(layerBytes / 1000),
                static_cast<long long>(search.size() / 1000));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    std::printf("| document | pages | reading | text layer | structure | search text | all "
                "layers | all search text |\n"
                "| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |\n");
    for (int i = 1; i < argc; ++i) {
        try {
            measure(QString::fromLocal8Bit(argv[i]));
        } catch (const PlatformException& failure) {
            std::fprintf(stderr, "%s\n", qPrintable(failure.reason()));
            return 1;
        }
    }
    return 0;
}
