#include "Prose.h"

#include <QList>

namespace {

constexpr const char* kWords[] = {
    "the",     "a",      "of",     "and",     "in",      "with",    "over",    "under",   "page",
    "river",   "paper",  "light",  "morning", "harbour", "letter",  "printer", "window",  "margin",
    "stone",   "garden", "quiet",  "narrow",  "bright",  "old",     "turning", "folded",  "written",
    "carries", "keeps",  "leaves", "opens",   "follows", "between", "along",   "towards", "always",
    "spring",  "winter", "voice",  "shadow",  "journey", "measure", "thread",  "binding", "answer"};

} // namespace

QByteArray Prose::sentence() {
    const unsigned length = 6 + below(11);
    QByteArray result;
    for (unsigned i = 0; i < length; ++i) {
        if (i > 0)
            result += i > 3 && i + 2 < length && below(9) == 0 ? ", " : " ";
        result += kWords[below(std::size(kWords))];
    }
    result[0] = static_cast<char>(result[0] - 'a' + 'A');
    return result + (below(12) == 0 ? "?" : ".");
}

std::vector<QByteArray> Prose::lines(int count, int width) {
    std::vector<QByteArray> result;
    QByteArray line;
    while (true) {
        for (const QByteArray& word : sentence().split(' ')) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > width) {
                result.push_back(line);
                if (result.size() == static_cast<size_t>(count))
                    return result;
                line.clear();
            }
            line += (line.isEmpty() ? "" : " ") + word;
        }
    }
}
