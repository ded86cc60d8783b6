// Measures republishing a book whose pages are already imported, as the live preview and the
// publish sheet do, and where the time goes.
//
//     folvero-bench-republish DOCUMENT PAGES [ROUNDS]

#include "base/Stopwatch.h"
#include "output/FolveroOutput.h"
#include "pages/FlashPageSourcePDF.h"
#include "template/FlashTemplate.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

double medianMilliseconds(int rounds, const std::function<void()>& action) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        Stopwatch watch;
        action();
        times.push_back(1000 * watch.lap());
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

void measure(FolveroOutput& output, int rounds) {
    const QString xml = output.saveToFolder() + QStringLiteral("/files/UserConfig.bin");
    const auto html = std::make_shared<HTMLConfigInfo>();
    output.setHTMLConfig(html);
    const std::vector<std::pair<const char*, std::function<void()>>> steps{
        {"the whole book", [&] { output.ouputTheBook(); }},
        {"  page files", [&] { output.prepaireNomalPage(QString()); }},
        {"  files of the template's properties", [&] { output.prepaireExtFiles(QString()); }},
        {"  configuration, with writing it", [&] { output.ouputBookXML(xml); }},
        {"  configuration, without writing it", [&] { output.bookXML(); }},
        {"  page of the book",
         [&] {
             html->generateHTMLFrom(output.flashTemplate()->tmplHTMLFilePath(),
                                    output.outputHTMLFileName());
         }},
    };
    std::printf("| step | median ms |\n| --- | ---: |\n");
    for (const auto& [name, action] : steps)
        std::printf("| %s | %.2f |\n", name, medianMilliseconds(rounds, action));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: folvero-bench-republish DOCUMENT PAGES [ROUNDS]\n");
        return 2;
    }
    const auto source = std::make_shared<FlashPageSourcePDF>(
        QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]), 144, 100);
    source->generatePages();
    source->generateNormalPages();
    const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/folvero-bench-XXXXXX"));
    FolveroOutput output(source, std::make_shared<FlashTemplate>(), folder.path(),
                         QStringLiteral("index.html"));
    output.ouputTheBook();
    std::printf("%zu pages\n\n", source->normalPages().size());
    measure(output, argc > 3 ? std::max(1, std::atoi(argv[3])) : 15);
    return 0;
}
