#include "Samples.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QStringList>
#include <cstdio>

namespace {

bool make(const Sample& sample, const QDir& folder) {
    QFile file(folder.filePath(QString::fromLatin1(sample.fileName)));
    const QByteArray bytes = sample.make();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        return true;
    std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
    return false;
}

std::vector<Sample> testSamples() {
    std::vector<Sample> all;
    for (const auto& group :
         {bookSamples, documentSamples, textSamples, navigationSamples, boxSamples, imageSamples,
          scriptSamples, brokenSamples, hostileSamples})
        for (Sample& sample : group())
            all.push_back(std::move(sample));
    return all;
}

} // namespace

int main(int argc, char** argv) {
    // Text is measured and drawn, nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Fonts and pictures of a page are listed in a hash's order, which must not change.
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments().mid(1);
    const bool bench = arguments.removeAll(QStringLiteral("--bench")) > 0;
    if (arguments.size() != 1) {
        std::fputs("usage: folvero-make-samples [--bench] FOLDER\n"
                   "Writes the sample documents, or with --bench those of the benchmarks.\n",
                   stderr);
        return 2;
    }
    const QDir folder(arguments.first());
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "%s: cannot be made\n", qPrintable(folder.path()));
        return 1;
    }
    for (const Sample& sample : bench ? benchmarkSamples() : testSamples())
        if (!make(sample, folder))
            return 1;
    return 0;
}
