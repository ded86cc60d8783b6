#include "Fuzz.h"
#include "output/TextTemplate.h"

#include <QList>
#include <algorithm>

// The template, then names and values by turns, with zero bytes between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QList<QByteArray> parts = Fuzz::Input(data, size).rest().split('\0');
    const QString text = QString::fromUtf8(parts.first());
    TextTemplate filled(text);
    qsizetype longest = 0;
    for (qsizetype i = 2; i < parts.size(); i += 2) {
        const QString value = QString::fromUtf8(parts[i]);
        filled.setItem(QString::fromUtf8(parts[i - 1]), value);
        longest = std::max(longest, value.size());
    }

    const QString result = filled.parse();
    Fuzz::require(filled.parse() == result, "filling in twice gives the same");
    const qsizetype placeholders = text.count("${");
    Fuzz::require(result.size() <= text.size() + placeholders * longest,
                  "nothing grows but by values");
    Fuzz::require(placeholders > 0 || result == text.trimmed(),
                  "a text without placeholders stays");
    return 0;
}
