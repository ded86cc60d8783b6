#include "fuzz/Seeds.h"

#include <QDir>
#include <QFile>
#include <QHashFunctions>
#include <cstdio>

namespace {

bool write(const SeedSet& set, const QDir& root) {
    const QDir folder(root.filePath(QString::fromLatin1(set.harness)));
    folder.mkpath(QStringLiteral("."));
    int number = 0;
    for (const QByteArray& seed : set.seeds) {
        QFile file(folder.filePath(QStringLiteral("seed-%1").arg(++number, 2, 10, QChar(u'0'))));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()),
                         qPrintable(file.errorString()));
            return false;
        }
    }
    return true;
}

} // namespace

// Writes a folder of seeds for each harness into the folder that is named.
int main(int argc, char** argv) {
    QHashSeed::setDeterministicGlobalSeed();
    if (argc != 2) {
        std::fputs("usage: fuzz-seeds FOLDER\n", stderr);
        return 2;
    }
    const QDir root(QFile::decodeName(argv[1]));
    std::vector<SeedSet> sets = textSeeds();
    sets.push_back(documentSeeds());
    for (const SeedSet& set : sets) {
        if (!write(set, root))
            return 1;
    }
    return 0;
}
