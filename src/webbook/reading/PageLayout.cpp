#include "webbook/reading/PageLayout.h"

#include "webbook/reading/ColumnCut.h"
#include "webbook/reading/LineJoin.h"

#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <utility>

namespace PageLayout {
namespace {

// A gap between two words, in sizes of letters, that divides cells of a table; and one that is a
// blank.
constexpr double cellGap = 1.6;
constexpr double blankGap = 0.15;
// Of a large first letter, for the text around it.
constexpr double initialSize = 1.7;

// How text of a direction is seen when it is turned upright: along grows in the direction in which
// it is read, across from line to line.
struct Frame {
    int turn = 0;
    bool mirrored = false; // for right to left

    double along(double x, double y) const {
        const std::array values{x, y, -x, -y};
        const double value = values[std::size_t(turn / 90)];
        return mirrored ? -value : value;
    }
    double across(double baseline) const {
        return turn == 90 || turn == 180 ? -baseline : baseline;
    }
};

struct Word {
    double left = 0;
    double right = 0;
    double size = 0;
    ReadingRun run;
};

// A piece of a line, upright.
struct Piece {
    ColumnCut::Piece place;
    QRectF box;
    bool rightToLeft = false;
    std::vector<Word> words;
    std::vector<std::size_t> sources;

    std::size_t letters() const {
        qsizetype count = 0;
        for (const Word& word : words)
            count += word.run.text.size();
        return std::size_t(count);
    }
};

// The item that most letters of a piece of text have.
template <class Items, class Of>
auto mostCommon(const Items& items, Of of) {
    std::map<decltype(of(*items.begin()).first), std::size_t> counts;
    for (const auto& item : items) {
        const auto [value, weight] = of(item);
        counts[value] += weight;
    }
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto& a, const auto& b) { return a.second < b.second; })
        ->first;
}

QRectF boxOf(const PDFTextLine& line, const PDFTextWord& word) {
    if (line.turn % 180 == 0)
        return {line.box.x() + word.start, line.box.y(), word.length, line.box.height()};
    return {line.box.x(), line.box.y() + word.start, line.box.width(), word.length};
}

void setLink(ReadingRun& run, const QRectF& box, const std::vector<Link>& links) {
    for (const Link& link : links) {
        if (!link.box.contains(box.center()))
            continue;
        run.url = link.url;
        run.target = link.target;
        return;
    }
}

Piece pieceFrom(const PDFTextLine& line, const Frame& frame, int position,
                const std::vector<Link>& links) {
    Piece piece;
    piece.box = line.box;
    piece.rightToLeft = line.rightToLeft;
    for (const PDFTextWord& word : line.words) {
        const QRectF box = boxOf(line, word);
        const double a = frame.along(box.left(), box.top());
        const double b = frame.along(box.right(), box.bottom());
        piece.words.push_back({std::min(a, b),
                               std::max(a, b),
                               word.size > 0 ? word.size : line.box.height(),
                               {word.text, position, word.style, {}, 0}});
        setLink(piece.words.back().run, box, links);
    }
    const double a = frame.along(line.box.left(), line.box.top());
    const double b = frame.along(line.box.right(), line.box.bottom());
    const double size = mostCommon(piece.words, [](const Word& word) {
        return std::pair(std::round(10 * word.size) / 10, std::size_t(word.run.text.size()));
    });
    piece.place = {std::min(a, b), std::max(a, b), frame.across(line.baseline), size,
                   int(piece.words.size())};
    return piece;
}

// Whether two pieces stand beside each other, one of them possibly raised.
bool areOfOneRow(const ColumnCut::Piece& a, const ColumnCut::Piece& b) {
    const double shared = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
    return shared > 0.5 * std::min(a.bottom() - a.top(), b.bottom() - b.top());
}

void chopBlanks(QString& text) {
    while (text.endsWith(u' '))
        text.chop(1);
}

// Cells are divided by tabs, other words by blanks.
void append(ReadingLine& line, const Word& word, double gap) {
    const QString& text = word.run.text;
    if (!line.runs.empty()) {
        QString& before = line.runs.back().text;
        if (gap > cellGap * line.size && !line.isMonospaced()) {
            chopBlanks(before);
            before += u'\t';
            ++line.cells;
        } else if (gap > blankGap * line.size && !before.endsWith(u' ')) {
            before += u' ';
        }
    }
    ReadingRun* last = line.runs.empty() ? nullptr : &line.runs.back();
    if (last && last->style == word.run.style && last->url == word.run.url &&
        last->target == word.run.target) {
        last->text += text;
        return;
    }
    ReadingRun next = word.run;
    const bool isPlain = next.style == plainText && next.url.isNull() && next.target == 0;
    // Blanks are no part of links and of words that are set off.
    if (last && isPlain && last->text.endsWith(u' ')) {
        last->text.chop(1);
        next.text.prepend(u' ');
    }
    line.runs.push_back(std::move(next));
}

// In code, blanks are as wide as letters.
void appendCode(ReadingLine& line, const Word& word, double gap) {
    const double letter =
        (word.right - word.left) / double(std::max<qsizetype>(1, word.run.text.trimmed().size()));
    if (!line.runs.empty() && letter > 0 && gap > 1.5 * letter) {
        const int blanks = std::min(80, int(std::lround(gap / letter)));
        chopBlanks(line.runs.back().text);
        line.runs.back().text += QString(blanks, u' ');
    }
    append(line, word, gap);
}

// What all words are; programs have signs of other fonts.
int styleOf(const std::vector<const Piece*>& pieces) {
    int ofAll = ~0;
    qsizetype monospaced = 0;
    qsizetype letters = 0;
    for (const Piece* piece : pieces) {
        for (const Word& word : piece->words) {
            const qsizetype count = word.run.text.size();
            ofAll &= word.run.style;
            letters += count;
            monospaced += (word.run.style & monospacedText) ? count : 0;
        }
    }
    return 10 * monospaced > 7 * letters ? ofAll | monospacedText : ofAll & ~monospacedText;
}

ReadingLine lineFrom(std::vector<const Piece*> pieces) {
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const Piece* a, const Piece* b) { return a->place.left < b->place.left; });
    const Piece& main =
        **std::max_element(pieces.begin(), pieces.end(), [](const Piece* a, const Piece* b) {
            return a->letters() < b->letters();
        });
    ReadingLine line;
    line.left = pieces.front()->place.left;
    line.right = line.left;
    line.baseline = main.place.baseline;
    line.size = main.place.size;
    line.rightToLeft = main.rightToLeft;
    line.style = styleOf(pieces);
    for (const Piece* piece : pieces) {
        line.box |= piece->box;
        line.sources.insert(line.sources.end(), piece->sources.begin(), piece->sources.end());
    }
    const Word& first = pieces.front()->words.front();
    line.firstStyle = first.run.style;
    line.firstLength = first.right - first.left;
    line.startsRaised = first.size < 0.85 * line.size;
    std::optional<double> second;
    for (const Piece* piece : pieces) {
        // Words of the other direction within a piece stand in reading order, not by place.
        double gap = piece->place.left - line.right;
        for (const Word& word : piece->words) {
            if (!line.runs.empty() && !second)
                second = word.left;
            (line.isMonospaced() ? appendCode : append)(line, word, std::exchange(gap, 0));
            line.lastStyle = word.run.style;
            // A single letter may be a mark, which is smaller.
            if (word.run.text.trimmed().size() > 1)
                line.lastSize = word.size;
        }
        line.right = std::max(line.right, piece->place.right);
    }
    line.second = second.value_or(line.right);
    for (const ReadingRun& run : line.runs)
        line.text += run.text;
    return line;
}

bool isInitial(const Piece& piece, const Piece& below) {
    return piece.letters() <= 2 && piece.place.size > initialSize * below.place.size &&
           below.place.left >= piece.place.right - 1 && below.place.top() < piece.place.bottom() &&
           below.place.baseline > piece.place.top();
}

// Puts a large first letter in front of the first of the rows beside it.
void takeInitials(std::vector<std::vector<const Piece*>>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].size() != 1)
            continue;
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& other) {
            return isInitial(*rows[i].front(), *other.front());
        });
        if (row == rows.end())
            continue;
        row->insert(row->begin(), rows[i].front());
        rows.erase(rows.begin() + std::ptrdiff_t(i--));
    }
}

ReadingRegion regionFrom(const std::vector<Piece>& pieces, const std::vector<std::size_t>& group) {
    std::vector<std::vector<const Piece*>> rows;
    for (const std::size_t i : group) {
        const Piece& piece = pieces[i];
        const auto row = std::find_if(rows.rbegin(), rows.rend(), [&](const auto& other) {
            return areOfOneRow(other.front()->place, piece.place) &&
                   std::abs(other.front()->place.size - piece.place.size) <
                       0.6 * std::max(other.front()->place.size, piece.place.size);
        });
        if (row != rows.rend() && row - rows.rbegin() < 3)
            row->push_back(&piece);
        else
            rows.push_back({&piece});
    }
    takeInitials(rows);
    ReadingRegion region;
    for (const auto& row : rows)
        region.lines.push_back(lineFrom(row));
    return region;
}

bool isSingleSign(const PDFTextLine& line) {
    const bool isOne = line.turn == 0 && line.words.size() == 1 && line.words[0].text.size() == 1;
    return isOne && isUnspaced(line.words[0].text[0]);
}

bool standsBelow(const PDFTextLine& sign, const PDFTextLine& above) {
    const double size = sign.words[0].size;
    const double gap = sign.box.center().y() - above.box.center().y();
    return std::abs(sign.box.center().x() - above.box.center().x()) < 0.5 * size &&
           gap > 0.3 * size && gap < 1.6 * size;
}

// A line, made of so many lines of the page from that one on.
struct Source {
    PDFTextLine line;
    std::size_t first = 0;
    std::size_t count = 0;
};

// Programs without fonts for vertical text set each Chinese or Japanese sign by itself.
std::vector<Source> withVerticalLines(const std::vector<PDFTextLine>& lines) {
    std::vector<Source> joined;
    const PDFTextLine* last = nullptr; // the sign at the end of the last line, if it is vertical
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const PDFTextLine& line = lines[i];
        const bool isSign = isSingleSign(line);
        if (!isSign || !last || !standsBelow(line, *last)) {
            joined.push_back({line, i, 1});
            last = isSign ? &line : nullptr;
            continue;
        }
        ++joined.back().count;
        PDFTextLine& whole = joined.back().line;
        if (whole.turn == 0) {
            whole.turn = 90;
            whole.baseline = whole.box.center().x();
            whole.words[0].start = 0;
            whole.words[0].length = whole.box.height();
        }
        PDFTextWord sign = line.words[0];
        sign.start = line.box.y() - whole.box.y();
        sign.length = line.box.height();
        whole.words.push_back(std::move(sign));
        whole.box |= line.box;
        last = &line;
    }
    return joined;
}

std::size_t lettersOf(const PDFTextLine& line) {
    std::size_t count = 0;
    for (const PDFTextWord& word : line.words)
        count += std::size_t(word.text.size());
    return count;
}

// Lines come from untrusted documents.
bool liesOnPage(const PDFTextLine& line) {
    constexpr double furthest = 1e6;
    const auto isNear = [](double number) { return std::abs(number) <= furthest; };
    const auto isWordNear = [&](const PDFTextWord& word) {
        return isNear(word.start) && isNear(word.length) && isNear(word.size);
    };
    return lettersOf(line) > 0 && isNear(line.baseline) && isNear(line.box.left()) &&
           isNear(line.box.right()) && isNear(line.box.top()) && isNear(line.box.bottom()) &&
           std::all_of(line.words.begin(), line.words.end(), isWordNear);
}

// groupsOf divides pieces by their places as ColumnCut::groups() does.
template <class GroupsOf>
ReadingPage layOut(int position, const std::vector<PDFTextLine>& found,
                   const std::vector<Link>& links, GroupsOf groupsOf) {
    ReadingPage page{position, {}, {}};
    if (found.empty())
        return page;
    const std::vector<Source> lines = withVerticalLines(found);
    const int most = mostCommon(lines, [](const Source& source) {
        return std::pair(source.line.turn, lettersOf(source.line));
    });
    for (const int turn : {most, 0, 90, 180, 270}) {
        if (turn == most && !page.regions.empty())
            continue;
        Frame frame{turn, false};
        std::ptrdiff_t fromRight = 0;
        for (const auto& [line, first, count] : lines) {
            if (line.turn == turn)
                fromRight += std::ptrdiff_t(lettersOf(line)) * (line.rightToLeft ? 1 : -1);
        }
        frame.mirrored = fromRight > 0;
        std::vector<Piece> pieces;
        std::vector<ColumnCut::Piece> places;
        for (const auto& [line, first, count] : lines) {
            if (line.turn != turn || !liesOnPage(line))
                continue;
            pieces.push_back(pieceFrom(line, frame, position, links));
            for (std::size_t i = 0; i < count; ++i)
                pieces.back().sources.push_back(first + i);
            places.push_back(pieces.back().place);
        }
        for (const auto& group : groupsOf(places)) {
            if (!group.empty())
                page.regions.push_back(regionFrom(pieces, group));
        }
    }
    return page;
}

} // namespace

ReadingPage of(int position, const std::vector<PDFTextLine>& lines,
               const std::vector<Link>& links) {
    return layOut(position, lines, links, ColumnCut::groups);
}

std::vector<ReadingLine> inOrder(int position, const std::vector<PDFTextLine>& lines,
                                 const std::vector<Link>& links) {
    const auto oneGroup = [](const std::vector<ColumnCut::Piece>& places) {
        std::vector<std::size_t> all(places.size());
        std::iota(all.begin(), all.end(), std::size_t(0));
        return std::vector<std::vector<std::size_t>>{all};
    };
    std::vector<ReadingLine> ordered;
    for (ReadingRegion& region : layOut(position, lines, links, oneGroup).regions)
        std::move(region.lines.begin(), region.lines.end(), std::back_inserter(ordered));
    return ordered;
}

} // namespace PageLayout
