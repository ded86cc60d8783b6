#include "builder/PDFDamage.h"

#include <cmath>

namespace {

qsizetype tablePosition(const QByteArray& file) {
    return file.lastIndexOf("\nxref\n") + 1;
}

} // namespace

QByteArray PDFDamage::truncated(const QByteArray& file, double fraction) {
    return file.left(std::llround(static_cast<double>(file.size()) * fraction));
}

QByteArray PDFDamage::withWrongXref(const QByteArray& file) {
    QByteArray table = file.mid(tablePosition(file));
    table.replace("00000 n", "00000 f");
    return file.left(tablePosition(file)) + "% moved by an editor that did not know better\n" +
           table;
}

QByteArray PDFDamage::withoutTrailer(const QByteArray& file) {
    return file.left(tablePosition(file));
}
