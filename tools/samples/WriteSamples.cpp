#include "WriteSamples.h"

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

} // namespace

int writeSamples(int argc, char** argv, std::vector<Sample> (*samples)(),
                 std::vector<Sample> (*benchmarks)()) {
    // Text is measured and drawn, nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Fonts and pictures of a page are listed in a hash's order, which must not change.
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments().mid(1);
    const bool bench = benchmarks && arguments.removeAll(QStringLiteral("--bench")) > 0;
    if (arguments.size() != 1) {
        std::fprintf(stderr, "usage: %s%s FOLDER\n", argv[0], benchmarks ? " [--bench]" : "");
        return 2;
    }
    const QDir folder(arguments.first());
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "%s: cannot be made\n", qPrintable(folder.path()));
        return 1;
    }
    for (const Sample& sample : bench ? benchmarks() : samples())
        if (!make(sample, folder))
            return 1;
    return 0;
}
