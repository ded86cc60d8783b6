#include "pdf/DrawablePDF.h"
#include "pdf/PDFEngine.h"

#include <map>
#include <set>

namespace {

// How the pages from a given one on are labelled.
struct LabelRange {
    QString style; // "D", "R", "r", "A", "a", or empty for the prefix alone
    QString prefix;
    int first = 1;
};

using LabelRanges = std::map<int, LabelRange>; // by zero-based first page

constexpr int maxTreeDepth = 32;
constexpr qsizetype maxPrefix = 64;

QString roman(int number) {
    constexpr std::pair<int, const char*> numerals[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    // Larger Roman numerals are unreadable.
    constexpr int largest = 9999;
    if (number < 1 || number > largest)
        return QString::number(number);
    QString text;
    for (const auto& [value, letters] : numerals) {
        for (; number >= value; number -= value)
            text += QLatin1String(letters);
    }
    return text;
}

// a to z, then aa to zz, then aaa to zzz.
QString letters(int number) {
    constexpr int alphabet = 26;
    constexpr int maxLetters = 20;
    const int count = (number - 1) / alphabet + 1;
    if (number < 1 || count > maxLetters)
        return QString::number(number);
    return {count, QChar(u'a' + (number - 1) % alphabet)};
}

QString labelOf(const LabelRange& range, int number) {
    if (range.style == u"D")
        return range.prefix + QString::number(number);
    if (range.style == u"r" || range.style == u"R")
        return range.prefix + (range.style == u"R" ? roman(number).toUpper() : roman(number));
    if (range.style == u"a" || range.style == u"A")
        return range.prefix + (range.style == u"A" ? letters(number).toUpper() : letters(number));
    return range.prefix;
}

std::vector<QString> expand(const LabelRanges& ranges, int pageCount) {
    std::vector<QString> labels;
    if (ranges.empty())
        return labels;
    // Pages before the first range have no label.
    labels.resize(std::size_t(pageCount));
    for (auto range = ranges.begin(); range != ranges.end(); ++range) {
        const auto next = std::next(range);
        const int end = next == ranges.end() ? pageCount : std::min(next->first, pageCount);
        for (int page = range->first; page < end; ++page) {
            const qint64 number = qint64(range->second.first) + page - range->first;
            labels[std::size_t(page)] =
                labelOf(range->second, int(std::min<qint64>(number, INT_MAX)));
        }
    }
    return labels;
}

// Reads the leaves of the number tree of labels. A malicious file may contain a cycle.
class LabelTree {
public:
    explicit LabelTree(const PDFEngine& engine) : iEngine(engine) {}

    void read(pdf_obj* node, int depth) {
        pdf_obj* dictionary = iEngine.resolved(node);
        if (!dictionary || depth > maxTreeDepth || !iSeen.insert(dictionary).second)
            return;
        readLeaf(iEngine.entry(dictionary, "Nums"));
        pdf_obj* children = iEngine.entry(dictionary, "Kids");
        for (int i = 0; i < length(children); ++i)
            read(at(children, i), depth + 1);
    }

    const LabelRanges& ranges() const { return iRanges; }

private:
    int length(pdf_obj* array) const {
        return iEngine.get([&](fz_context* ctx) { return pdf_array_len(ctx, array); }, 0);
    }
    pdf_obj* at(pdf_obj* array, int index) const {
        return iEngine.object([&](fz_context* ctx) { return pdf_array_get(ctx, array, index); });
    }
    int number(pdf_obj* object, int otherwise) const {
        return iEngine.get(
            [&](fz_context* ctx) {
                return pdf_is_int(ctx, object) ? pdf_to_int(ctx, object) : otherwise;
            },
            otherwise);
    }

    void readLeaf(pdf_obj* pairs) {
        for (int i = 0; i + 1 < length(pairs); i += 2) {
            const int page = number(at(pairs, i), -1);
            pdf_obj* label = at(pairs, i + 1);
            if (page < 0 || page >= iEngine.pageCount)
                continue;
            iRanges[page] = {iEngine.name(iEngine.entry(label, "S")),
                             iEngine.text(iEngine.entry(label, "P")).left(maxPrefix),
                             std::max(1, number(iEngine.entry(label, "St"), 1))};
        }
    }

    const PDFEngine& iEngine;
    std::set<pdf_obj*> iSeen;
    LabelRanges iRanges;
};

} // namespace

std::vector<QString> DrawablePDF::pageLabels() const {
    LabelTree tree(*iEngine);
    tree.read(iEngine->entry(iEngine->trailerEntry("Root"), "PageLabels"), 0);
    return expand(tree.ranges(), iEngine->pageCount);
}
