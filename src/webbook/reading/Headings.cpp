#include "webbook/reading/Headings.h"

#include "webbook/reading/ListMarker.h"

#include <QHash>
#include <QRegularExpression>
#include <cmath>
#include <map>
#include <tuple>

namespace Headings {
namespace {

using Kind = ReadingBlock::Kind;

constexpr std::size_t mostLines = 4;
constexpr qsizetype mostLetters = 220;
constexpr int deepest = 6;
// Of letters, for those of the text: some programs tag the title of a document as a paragraph.
constexpr double titleSize = 1.3;

// Larger ones first.
struct Look {
    int size; // in half points, negative
    bool isPlain;

    bool operator<(const Look& other) const {
        return std::tie(size, isPlain) < std::tie(other.size, other.isPlain);
    }
};

Look lookOf(const ReadingParagraph& paragraph) {
    const ReadingLine& line = paragraph.lines.front();
    return {-int(std::lround(2 * line.size)), !line.isBold()};
}

QString textOf(const ReadingParagraph& paragraph) {
    QString text;
    for (const ReadingLine& line : paragraph.lines)
        text += line.text;
    return text;
}

// The depth of a number such as 2.1; 0 for none.
int depthOf(const QString& text) {
    static const QRegularExpression number(
        QStringLiteral("^\\d{1,2}((?:\\.\\d{1,2})*)\\.?\\s+\\S"));
    const auto match = number.match(text);
    return match.hasMatch() ? int(match.captured(1).count(u'.')) + 1 : 0;
}

// Letters and digits only, as outlines and pages differ in numbering and blanks.
QString folded(const QString& title) {
    static const QRegularExpression number(QStringLiteral("^[\\s\\d.]+(?=\\S)"));
    QString kept;
    for (const QChar letter : title.normalized(QString::NormalizationForm_KC).toLower()) {
        if (letter.isLetterOrNumber())
            kept += letter;
    }
    const QString plain = QString(title).remove(number);
    if (plain.size() == title.size())
        return kept;
    qsizetype digits = 0;
    while (digits < kept.size() && kept[digits].isDigit())
        ++digits;
    return digits < kept.size() ? kept.mid(digits) : kept;
}

// Without the number of a footnote, or of sources, at its end, which outlines leave out.
QString withoutReferences(QString title) {
    static const QRegularExpression reference(
        QStringLiteral("(?:(?<=[^\\s\\d.])\\d{1,2}|\\s*\\[[\\d,\\s\u2013-]+\\])$"));
    return title.remove(reference);
}

bool hasShape(const ReadingParagraph& paragraph) {
    const QString text = textOf(paragraph);
    return (paragraph.kind == Kind::paragraph || paragraph.kind == Kind::listItem) &&
           paragraph.lines.size() <= mostLines && text.size() <= mostLetters;
}

bool hasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// Whether a paragraph looks like a heading to readers. A bold one is followed by other text.
bool looksLikeHeading(const ReadingParagraph& paragraph, const ReadingParagraph* next,
                      const TextMeasure& measure) {
    const ReadingLine& line = paragraph.lines.front();
    const QString text = textOf(paragraph);
    if (!hasShape(paragraph) || !hasLetter(text))
        return false;
    const ListMarker marker = listMarkerOf(text);
    if (marker == ListMarker::bullet || marker == ListMarker::dash)
        return false;
    if (measure.isLarge(line.size))
        return paragraph.kind == Kind::paragraph || line.isBold() || !next ||
               !measure.isLarge(next->lines.front().size);
    const bool isBold = std::all_of(paragraph.lines.begin(), paragraph.lines.end(),
                                    [](const ReadingLine& each) { return each.isBold(); });
    const bool isSentence = text.endsWith(u'.') || text.endsWith(u',') || text.endsWith(u';');
    return isBold && !isSentence && !measure.isSmall(line.size) && paragraph.lines.size() <= 2 &&
           next && next->kind != Kind::tableRow && !measure.isCode(line);
}

// What is read next, whatever figures are between; null for none.
const ReadingParagraph* textAfter(const std::vector<ReadingParagraph>& paragraphs, std::size_t i) {
    while (++i < paragraphs.size()) {
        if (paragraphs[i].kind != Kind::figure)
            return &paragraphs[i];
    }
    return nullptr;
}

bool isTaggedHeading(const ReadingParagraph& paragraph) {
    return paragraph.isTagged && paragraph.kind == Kind::heading;
}

// The levels of looks: as in the outline, and between those by size.
std::map<Look, int> levelsOf(const std::map<Look, std::map<int, int>>& looks) {
    std::map<Look, int> levels;
    int level = 0;
    for (const auto& [look, counts] : looks) {
        const auto usual =
            std::max_element(counts.begin(), counts.end(),
                             [](const auto& a, const auto& b) { return a.second < b.second; });
        // 0 stands for headings that are not in the outline.
        if (usual->first > 0)
            level = std::max(level, usual->first);
        else
            ++level;
        levels[look] = std::min(level, deepest);
    }
    return levels;
}

} // namespace

void mark(std::vector<ReadingParagraph>& paragraphs, const TextMeasure& measure,
          const std::vector<Entry>& outline) {
    QHash<QString, std::vector<const Entry*>> byTitle;
    for (const Entry& entry : outline)
        byTitle[folded(entry.title)].push_back(&entry);
    const auto levelInOutline = [&](const ReadingParagraph& paragraph) {
        const QString text = textOf(paragraph);
        auto found = byTitle.constFind(folded(text));
        if (found == byTitle.constEnd())
            found = byTitle.constFind(folded(withoutReferences(text)));
        if (found == byTitle.constEnd() || !hasShape(paragraph))
            return 0;
        for (const Entry* entry : *found) {
            if (std::abs(entry->position - paragraph.lines.front().position()) <= 1)
                return std::min(entry->level, deepest);
        }
        return 0;
    };
    const bool hasTags = std::any_of(paragraphs.begin(), paragraphs.end(), isTaggedHeading);
    std::map<Look, std::map<int, int>> looks;
    for (std::size_t i = 0; i < paragraphs.size(); ++i) {
        ReadingParagraph& paragraph = paragraphs[i];
        if (paragraph.kind == Kind::figure)
            continue;
        if (isTaggedHeading(paragraph))
            ++looks[lookOf(paragraph)][paragraph.level];
        const bool isTitle = paragraph.lines.front().size > titleSize * measure.size;
        if (paragraph.isTagged && hasTags && (!isTitle || isTaggedHeading(paragraph)))
            continue;
        const ReadingParagraph* next = textAfter(paragraphs, i);
        paragraph.level = outline.empty() ? 0 : levelInOutline(paragraph);
        if (paragraph.level == 0 && !looksLikeHeading(paragraph, next, measure))
            continue;
        paragraph.kind = Kind::heading;
        if (outline.empty())
            paragraph.level = std::min(depthOf(textOf(paragraph)), deepest);
        ++looks[lookOf(paragraph)][paragraph.level];
    }
    const auto levels = levelsOf(looks);
    for (ReadingParagraph& paragraph : paragraphs) {
        if (paragraph.kind == Kind::heading && paragraph.level == 0)
            paragraph.level = levels.at(lookOf(paragraph));
    }
}

} // namespace Headings
