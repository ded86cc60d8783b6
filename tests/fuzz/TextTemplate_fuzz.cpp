#include "fuzz/Fuzz.h"
#include "output/TextTemplate.h"

#include <QList>
#include <algorithm>

namespace {

qsizetype longestValue(const QList<QByteArray>& parts) {
    qsizetype longest = 0;
    for (qsizetype i = 2; i < parts.size(); i += 2)
        longest = std::max(longest, QString::fromUtf8(parts[i]).size());
    return longest;
}

} // namespace

// The template, then names and values by turns, with zero bytes between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<QByteArray> parts = Fuzz::Input(data, size).rest().split('\0');
    const QString text = QString::fromUtf8(parts.first());
    TextTemplate filled(text);
    for (qsizetype i = 2; i < parts.size(); i += 2)
        filled.setItem(QString::fromUtf8(parts[i - 1]), QString::fromUtf8(parts[i]));

    const QString result = filled.parse();
    Fuzz::require(filled.parse() == result, "filling in twice gives the same");
    const qsizetype placeholders = text.count(QStringLiteral("${"));
    Fuzz::require(result.size() <= text.size() + placeholders * longestValue(parts),
                  "nothing grows but by values");
    if (placeholders == 0)
        Fuzz::require(result == text.trimmed(), "a text without placeholders stays");
    return 0;
}
