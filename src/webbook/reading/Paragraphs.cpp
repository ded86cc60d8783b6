#include "webbook/reading/Paragraphs.h"

#include "webbook/reading/ListMarker.h"

#include <QRegularExpression>
#include <cmath>
#include <optional>
#include <span>

namespace {

using Kind = ReadingBlock::Kind;
using Lines = std::span<const ReadingLine>;

constexpr double indentSize = 0.6; // in sizes of letters
constexpr double sameEdge = 0.3;
constexpr double usualPitch = 1.3;
constexpr double narrow = 0.6; // of a region's width

int halfPoints(double size) {
    return int(std::lround(2 * size));
}

template <class Counts>
auto mostFrequent(const Counts& counts) {
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

bool areSimilar(double a, double b) {
    return std::abs(a - b) <= 0.08 * std::max(a, b);
}

// Lines that follow each other at a distance that may be that of lines of a paragraph.
template <class Use>
void forEachPitch(const ReadingRegion& region, Use use) {
    for (std::size_t i = 1; i < region.lines.size(); ++i) {
        const ReadingLine& a = region.lines[i - 1];
        const ReadingLine& b = region.lines[i];
        const double pitch = b.baseline - a.baseline;
        if (areSimilar(a.size, b.size) && pitch > 0.8 * a.size && pitch < 2.6 * a.size)
            use(a, pitch);
    }
}

// The cells of a row of a table; a marker of a list is none.
int cellsOf(const ReadingLine& line) {
    const bool isItem = listMarkerOf(line.text) != ListMarker::none;
    return line.cells - (isItem && line.cells > 1 ? 1 : 0);
}

// Makes paragraphs of lines one by one.
class Divider {
public:
    Divider(const ReadingRegion& region, const TextMeasure& measure);
    std::vector<ReadingParagraph> divide();

private:
    bool isRow(std::size_t i) const;
    bool isStretched(std::size_t i) const;
    bool isEndOfText(std::size_t i) const;
    bool isApart(std::size_t i) const;
    std::size_t firstFootnote() const;
    void divide(Lines lines, Kind kind);
    void add(Lines lines, Kind kind, double right);
    double pitchOf(double size) const;
    double rightOf(Lines lines) const;

    const ReadingRegion& iRegion;
    const TextMeasure& iMeasure;
    double iLeft;
    double iRight;
    std::map<int, double> iPitches; // of the region
    std::vector<ReadingParagraph> iParagraphs;
};

Divider::Divider(const ReadingRegion& region, const TextMeasure& measure)
    : iRegion(region), iMeasure(measure), iLeft(region.left()), iRight(region.right()) {
    // Programs and tables may be wider than the text.
    std::optional<double> right;
    for (std::size_t i = 0; i < region.lines.size(); ++i) {
        if (!measure.isCode(region.lines[i]) && region.lines[i].cells < 2)
            right = std::max(right.value_or(iLeft), region.lines[i].right);
    }
    iRight = right.value_or(iRight);
    std::map<int, std::map<int, int>> pitches;
    forEachPitch(region, [&](const ReadingLine& line, double pitch) {
        ++pitches[halfPoints(line.size)][halfPoints(pitch)];
    });
    for (const auto& [size, counts] : pitches) {
        constexpr int enough = 3;
        const int usual = mostFrequent(counts);
        if (counts.at(usual) >= enough)
            iPitches[size] = usual / 2.0;
    }
}

double Divider::pitchOf(double size) const {
    const auto found = iPitches.find(halfPoints(size));
    const double ofBook = iMeasure.pitchOf(size);
    return found == iPitches.end() ? ofBook : std::min(found->second, 1.5 * ofBook);
}

// Whether a line has wide gaps only since it ends where the text around it does.
bool Divider::isStretched(std::size_t i) const {
    const auto endsAlike = [&](std::size_t other) {
        return std::abs(iRegion.lines[other].right - iRegion.lines[i].right) < 1;
    };
    return (i > 0 && endsAlike(i - 1)) || (i + 1 < iRegion.lines.size() && endsAlike(i + 1));
}

// A row of a table has others beside it, or does not fill its line.
bool Divider::isRow(std::size_t i) const {
    const ReadingLine& line = iRegion.lines[i];
    if (cellsOf(line) < 2)
        return false;
    const bool hasOthers = (i > 0 && cellsOf(iRegion.lines[i - 1]) > 1) ||
                           (i + 1 < iRegion.lines.size() && cellsOf(iRegion.lines[i + 1]) > 1);
    const double edge = indentSize * line.size;
    return hasOthers || (line.right < iRight - edge && !isStretched(i));
}

// Whether a line is monospaced since a name fills it that did not fit into the one before.
bool Divider::isEndOfText(std::size_t i) const {
    const ReadingLine& a = iRegion.lines[i - 1];
    const ReadingLine& b = iRegion.lines[i];
    return iMeasure.isCode(b) && b.left < a.left + indentSize * b.size &&
           !Paragraphs::wouldFit(a, iRight, b);
}

// Whether a paragraph ends before that line, whatever the edges of the lines.
bool Divider::isApart(std::size_t i) const {
    const ReadingLine& a = iRegion.lines[i - 1];
    const ReadingLine& b = iRegion.lines[i];
    const double pitch = b.baseline - a.baseline;
    const bool isCode = iMeasure.isCode(a) && iMeasure.isCode(b);
    if (isCode)
        return pitch > 4 * a.size || pitch <= 0;
    // A paragraph may begin with words of another size, such as a title within its first line.
    const bool isOneSize = areSimilar(a.size, b.size) || areSimilar(a.lastSize, b.size);
    if (!isOneSize || pitch < 0.5 * std::min(a.size, b.size) ||
        pitch > 1.22 * pitchOf(b.size) + 0.5)
        return true;
    if (isRow(i) || isRow(i - 1) || Paragraphs::isEntry(a.text) ||
        listMarkerOf(b.text) == ListMarker::bullet)
        return true;
    const bool boldEnds = a.isBold() && !(b.firstStyle & boldText);
    const bool boldStarts = b.isBold() && !(a.lastStyle & boldText);
    return boldEnds || boldStarts || (iMeasure.isCode(a) != iMeasure.isCode(b) && !isEndOfText(i));
}

// The lines from there to the end are footnotes; their number for none.
std::size_t Divider::firstFootnote() const {
    const auto& lines = iRegion.lines;
    std::size_t first = lines.size();
    for (std::size_t i = lines.size(); i-- > 0 && iMeasure.isSmall(lines[i].size);) {
        const bool isMarked = lines[i].startsRaised || startsLikeFootnote(lines[i].text);
        const bool isRowOfTable = isRow(i);
        if (isRowOfTable)
            break;
        if (isMarked && (i == 0 || !iMeasure.isSmall(lines[i - 1].size) || lines[i].startsRaised ||
                         first < lines.size()))
            first = i;
    }
    return first;
}

std::vector<ReadingParagraph> Divider::divide() {
    const Lines all(iRegion.lines);
    const std::size_t notes = firstFootnote();
    for (std::size_t first = 0; first < all.size();) {
        std::size_t end = first + 1;
        while (end < all.size() && end != notes && !isApart(end))
            ++end;
        const Lines lines = all.subspan(first, end - first);
        if (first >= notes)
            divide(lines, Kind::footnote);
        else if (isRow(first))
            add(lines, Kind::tableRow, iRight);
        else if (iMeasure.isCode(lines.front()))
            add(lines, Kind::code, iRight);
        else
            divide(lines, Kind::paragraph);
        first = end;
    }
    if (!iParagraphs.empty()) {
        iParagraphs.front().startsRegion = true;
        iParagraphs.back().endsRegion = true;
    }
    return std::move(iParagraphs);
}

// How far these lines may go. A few lines may all be short; an indented text may be so on both
// sides.
double Divider::rightOf(Lines lines) const {
    double left = lines.front().left;
    double right = lines.front().right;
    for (const ReadingLine& line : lines) {
        left = std::min(left, line.left);
        right = std::max(right, line.right);
    }
    const auto isFull = [&](const ReadingLine& line) {
        return line.right > right - 1.5 * line.size;
    };
    const auto full = std::count_if(lines.begin(), lines.end(), isFull);
    const bool isNarrow = right - left < narrow * (iRight - iLeft) && 2 * full < std::ssize(lines);
    constexpr std::size_t enough = 3;
    return lines.size() < enough || isNarrow ? std::max(right, iRight - (left - iLeft)) : right;
}

double usualLeft(Lines lines) {
    std::map<int, int> counts;
    for (const ReadingLine& line : lines)
        ++counts[int(std::lround(line.left))];
    return mostFrequent(counts);
}

// Lines of a paragraph, with what tells where it ends.
struct Edges {
    Lines lines;
    double usual;
    std::vector<bool> isShort; // whether a paragraph ends with that line
    bool isHanging = false;    // all lines but the first of a paragraph are indented

    Edges(Lines of, double right) : lines(of), usual(usualLeft(of)) {
        for (std::size_t i = 0; i + 1 < lines.size(); ++i)
            isShort.push_back(Paragraphs::wouldFit(lines[i], right, lines[i + 1]));
        int hanging = 0;
        int indented = 0;
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            if ((i > 0 && !isShort[i - 1]) || isShort[i])
                continue;
            const double edge = indentSize * lines[i].size;
            hanging += lines[i + 1].left > lines[i].left + edge ? 1 : 0;
            indented += lines[i + 1].left < lines[i].left + edge ? 1 : 0;
        }
        isHanging = hanging > indented;
    }
    bool isIndented(std::size_t i) const {
        return lines[i].left > usual + indentSize * lines[i].size;
    }
    bool haveSameLeft(std::size_t a, std::size_t b) const {
        return std::abs(lines[a].left - lines[b].left) < sameEdge * lines[a].size;
    }
    bool startsByMarker(std::size_t first, std::size_t i) const;
    bool startsByIndent(std::size_t first, std::size_t i) const;
};

bool Edges::startsByMarker(std::size_t first, std::size_t i) const {
    const ListMarker marker = listMarkerOf(lines[i].text);
    if (marker == ListMarker::none)
        return false;
    return isShort[i - 1] || !haveSameLeft(i - 1, i) ||
           (listMarkerOf(lines[first].text) == marker && haveSameLeft(first, i));
}

// first is the number of the paragraph's first line.
bool Edges::startsByIndent(std::size_t first, std::size_t i) const {
    const ReadingLine& line = lines[i];
    const double edge = indentSize * line.size;
    const bool isItem = listMarkerOf(lines[first].text) != ListMarker::none;
    if (isItem && std::abs(line.left - lines[first].second) < edge)
        return false;
    const double further = line.left - lines[i - 1].left;
    if (isItem || isHanging)
        return further < -edge;
    if (further < -edge)
        return i - 1 != first;
    if (!isIndented(i))
        return false;
    if (further > edge)
        return true;
    const bool isOfIndentedText = i + 1 < lines.size() && haveSameLeft(i, i + 1);
    return i - 1 == first && !isOfIndentedText;
}

void Divider::divide(Lines lines, Kind kind) {
    const double right = rightOf(lines);
    const Edges edges(lines, right);
    const auto shorts = std::count(edges.isShort.begin(), edges.isShort.end(), true);
    const bool isLarge = iMeasure.isLarge(lines.front().size);
    // Verses, addresses and the like.
    const bool endsEachLine =
        !isLarge && lines.size() > 2 && 2 * shorts > std::ssize(edges.isShort);
    std::size_t first = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const bool isNote = kind == Kind::footnote && lines[i].startsRaised;
        if (isNote || endsEachLine || edges.startsByMarker(first, i) ||
            (!isLarge && (edges.isShort[i - 1] || edges.startsByIndent(first, i)))) {
            add(lines.subspan(first, i - first), kind, right);
            iParagraphs.back().isIndented = edges.isIndented(first);
            first = i;
        }
    }
    add(lines.subspan(first), kind, right);
    iParagraphs.back().isIndented = edges.isIndented(first);
}

void Divider::add(Lines lines, Kind kind, double right) {
    const bool isItem =
        kind == Kind::paragraph && listMarkerOf(lines.front().text) != ListMarker::none;
    ReadingParagraph paragraph;
    paragraph.kind = isItem ? Kind::listItem : kind;
    paragraph.lines.assign(lines.begin(), lines.end());
    paragraph.right = lines.size() == 1 ? iRight : right;
    iParagraphs.push_back(std::move(paragraph));
}

} // namespace

TextMeasure TextMeasure::of(const std::vector<ReadingPage>& pages) {
    TextMeasure measure;
    std::map<int, qsizetype> sizes;
    std::map<int, std::map<int, int>> pitches;
    qsizetype monospaced = 0;
    qsizetype all = 0;
    for (const ReadingPage& page : pages) {
        for (const ReadingRegion& region : page.regions) {
            for (const ReadingLine& line : region.lines) {
                sizes[halfPoints(line.size)] += line.text.size();
                all += line.text.size();
                monospaced += line.isMonospaced() ? line.text.size() : 0;
            }
            forEachPitch(region, [&](const ReadingLine& line, double pitch) {
                ++pitches[halfPoints(line.size)][halfPoints(pitch)];
            });
        }
    }
    if (sizes.empty())
        return measure;
    measure.size = mostFrequent(sizes) / 2.0;
    measure.isMonospaced = 2 * monospaced > all;
    for (const auto& [size, counts] : pitches)
        measure.pitches[size] = mostFrequent(counts) / 2.0;
    return measure;
}

double TextMeasure::pitchOf(double lettersSize) const {
    const auto found = pitches.find(halfPoints(lettersSize));
    const double most = 1.6 * lettersSize;
    return found == pitches.end() ? usualPitch * lettersSize : std::min(found->second, most);
}

std::vector<ReadingParagraph> Paragraphs::of(const ReadingRegion& region,
                                             const TextMeasure& measure) {
    return Divider(region, measure).divide();
}

bool Paragraphs::isEntry(const QString& text) {
    static const QRegularExpression leader(
        QStringLiteral("(?:[.\u2026]\\s*){4}[\\divxlc,\\s\u2013-]+$"));
    return text.contains(leader);
}

bool Paragraphs::wouldFit(const ReadingLine& before, double right, const ReadingLine& line) {
    const double blank = 0.25 * line.size;
    const double doubt = 0.35 * line.size;
    return right - before.right > line.firstLength + blank + doubt;
}
